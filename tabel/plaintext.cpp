#include "tabel/plaintext.h"

#include "draw/shortenedtext.h"
#include "host/api/limits.h"

#include <QTextDocument>

QString PlainText::line(const QString& text)
{
    return ShortenedText::line(text, Limits::kLine);
}

QString PlainText::toolTip(const QString& text)
{
    const QString shown = ShortenedText::of(text, Limits::kTip);
    if (!Qt::mightBeRichText(shown))
        return shown;
    return QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>").arg(shown.toHtmlEscaped());
}

QString PlainText::breakable(const QString& text)
{
    constexpr int kLongest = 30;
    constexpr int kPart = 10;
    QString shown;
    int length = 0;
    for (const QChar character : text) {
        length = character.isSpace() ? 0 : length + 1;
        if (length > kLongest && length % kPart == 0)
            shown += QChar(0x200B); // a place to break at, without a width
        shown += character;
    }
    return shown;
}

QString PlainText::button(const QString& text)
{
    return line(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}
