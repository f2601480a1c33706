#pragma once

#include <QString>

/**
 * For what shows texts of documents, which can be of any length. Lengths are in UTF-16 units; no
 * character is cut in half.
 */
namespace ShortenedText
{

/// @p text, or the beginning of it and an ellipsis, @p most characters together.
QString of(const QString& text, int most);

/// As of(), but with the end of @p text as well, which tells numbered names apart.
QString middle(const QString& text, int most);

/// As of(), with spaces in the place of line breaks.
QString line(const QString& text, int most);

} // namespace ShortenedText
