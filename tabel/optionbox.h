#pragma once

#include <QString>

class QAbstractButton;
class QStyleOptionButton;
struct EnumOption;

/// What check boxes and radio buttons bound to an option have in common.
namespace OptionBox
{

/// Text, tool tip and the dynamic property "value" (the stored text).
void bind(QAbstractButton& box, const EnumOption& option);

/// Elides the text of @p option to what @p box has room for beside its mark.
void elide(const QAbstractButton& box, bool isRadio, QStyleOptionButton& option);

} // namespace OptionBox
