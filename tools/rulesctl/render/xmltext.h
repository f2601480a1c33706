#pragma once

#include <QString>

/// Texts of anybody's for XML and pages.
namespace XmlText
{

/// @p text without what XML has no place for, as control characters; it is not escaped.
QString writable(const QString& text);

/// The same, escaped for a page's text and its attributes in double quotation marks.
QString escaped(const QString& text);

} // namespace XmlText
