#include "host/gdiplus/textlines.h"

#include <QStringList>

namespace Gdiplus
{

namespace
{

/// As many characters as the system's text output takes; more would only cost time.
constexpr INT kMaximumLength = 8192;

INT boundedLength(const WCHAR* text, INT length)
{
    if (length >= 0)
        return qMin(length, kMaximumLength);
    INT count = 0;
    while (count < kMaximumLength && text[count])
        ++count;
    return count;
}

} // namespace

TextLines textLines(const WCHAR* text, INT length)
{
    const INT count = boundedLength(text, length);
    if (count == 0)
        return {};
    const QString whole = QString::fromRawData(reinterpret_cast<const QChar*>(text), count);
    TextLines lines;
    if (!whole.contains(QLatin1Char('\n'))) {
        lines.append(whole);
        return lines;
    }
    const QStringList parts = whole.split(QLatin1Char('\n'));
    for (const QString& part : parts)
        lines.append(part.endsWith(QLatin1Char('\r')) ? part.chopped(1) : part);
    return lines;
}

} // namespace Gdiplus
