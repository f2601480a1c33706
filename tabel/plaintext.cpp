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

QString PlainText::button(const QString& text)
{
    return line(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}
