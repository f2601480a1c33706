#pragma once

#include <QStyle>

class QAbstractButton;
class QStyleOptionButton;

/// Texts of buttons that have less room than they need.
namespace Elision
{

/// Elides the text of @p look to what @p button has room for, beside its icon, in @p contents.
void fit(const QAbstractButton& button, QStyle::SubElement contents, QStyleOptionButton& look);

} // namespace Elision
