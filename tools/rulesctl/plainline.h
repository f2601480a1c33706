#pragma once

#include <QString>

/// Texts of documents and names of files in lines of text.
namespace PlainLine
{

/// @p text on one line, with "?" for what would steer a terminal or turn its writing around.
QString of(const QString& text);

} // namespace PlainLine
