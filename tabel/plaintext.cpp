#include "tabel/plaintext.h"

#include "draw/shortenedtext.h"

#include <QTextDocument>

namespace
{

constexpr int kLongestLine = 300;
constexpr int kLongestTip = 2000;

} // namespace

QString PlainText::line(const QString& text)
{
    return ShortenedText::line(text, kLongestLine);
}

QString PlainText::toolTip(const QString& text)
{
    const QString shown = ShortenedText::of(text, kLongestTip);
    if (!Qt::mightBeRichText(shown))
        return shown;
    return QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>").arg(shown.toHtmlEscaped());
}

QString PlainText::button(const QString& text)
{
    return line(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}
