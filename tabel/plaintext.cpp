#include "tabel/plaintext.h"

#include <QTextDocument>

namespace
{

constexpr int kMaxLength = 2000;

} // namespace

QString PlainText::line(const QString& text)
{
    if (text.size() <= kMaxLength)
        return text;
    const int cut = text[kMaxLength].isLowSurrogate() ? kMaxLength - 1 : kMaxLength;
    return text.left(cut) + QChar(0x2026);
}

QString PlainText::toolTip(const QString& text)
{
    const QString shown = line(text);
    if (!Qt::mightBeRichText(shown))
        return shown;
    return QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>").arg(shown.toHtmlEscaped());
}

QString PlainText::button(const QString& text)
{
    return line(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}
