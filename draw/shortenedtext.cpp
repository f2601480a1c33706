#include "draw/shortenedtext.h"

#include <algorithm>

namespace
{

bool isLineBreak(QChar character)
{
    return QStringLiteral("\n\r\v\f\u2028\u2029").contains(character);
}

} // namespace

QString ShortenedText::of(const QString& text, int most)
{
    if (text.size() <= most)
        return text;
    const int cut = text[most - 1].isLowSurrogate() ? most - 2 : most - 1;
    return text.left(cut) + QChar(0x2026);
}

QString ShortenedText::middle(const QString& text, int most)
{
    constexpr int kEnd = 8;
    return text.size() <= most ? text : of(text, most - kEnd) + text.right(kEnd);
}

QString ShortenedText::line(const QString& text, int most)
{
    QString shown = of(text, most);
    std::replace_if(shown.begin(), shown.end(), isLineBreak, QLatin1Char(' '));
    return shown;
}
