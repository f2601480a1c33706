#pragma once

#include <QString>

/// Texts from documents and operators, shown as they stand by widgets that read markup.
namespace PlainText
{

/// For tool tips: no part of @p text is taken for rich text.
QString toolTip(const QString& text);

/// For button texts: "&" stays a character and makes no shortcut.
QString button(QString text);

} // namespace PlainText
