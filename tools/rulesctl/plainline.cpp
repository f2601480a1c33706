#include "tools/rulesctl/plainline.h"

#include <QChar>

namespace
{

bool isSteering(QChar character)
{
    const ushort code = character.unicode();
    const bool turnsAround =
        (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
    return character.category() == QChar::Other_Control || turnsAround;
}

} // namespace

QString PlainLine::of(const QString& text)
{
    QString line = text;
    for (QChar& character : line) {
        if (character.isSpace())
            character = QLatin1Char(' ');
        else if (isSteering(character))
            character = QLatin1Char('?');
    }
    return line;
}
