#pragma once

#include <QString>

/// Texts from documents and operators, shown as they stand by widgets that read markup. No more
/// of them is given to a widget than can be seen: measuring a text takes time for all of it.
namespace PlainText
{

/// For labels of one line, which elide what they have no room for. Line breaks become spaces.
QString line(const QString& text);

/// For tool tips: no part of @p text is taken for rich text.
QString toolTip(const QString& text);

/// For labels of several lines: words too long for one can be broken.
QString breakable(const QString& text);

/// For buttons, as line(): "&" stays a character and makes no shortcut.
QString button(const QString& text);

} // namespace PlainText
