#include "tabel/plaintext.h"

#include <QTextDocument>

QString PlainText::toolTip(const QString& text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    return QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped());
}

QString PlainText::button(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}
