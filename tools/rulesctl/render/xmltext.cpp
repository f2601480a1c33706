#include "tools/rulesctl/render/xmltext.h"

namespace
{

bool isWritable(QChar c)
{
    const ushort code = c.unicode();
    return code >= 0x20 ? code < 0xFFFE : code == '\t' || code == '\n' || code == '\r';
}

} // namespace

/// Halves of characters alone are none in UTF-8 either.
QString XmlText::writable(const QString& text)
{
    QString kept;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool isPair =
            c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair)
            kept += text.mid(i++, 2);
        else if (!c.isSurrogate() && isWritable(c))
            kept += c;
    }
    return kept;
}

QString XmlText::escaped(const QString& text)
{
    return writable(text).toHtmlEscaped();
}
