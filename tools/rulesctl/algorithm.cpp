#include "tools/rulesctl/algorithm.h"

std::optional<Algorithm> Algorithm::parse(const QString& text)
{
    const int colon = text.indexOf(QLatin1Char(':'));
    bool isNumber = false;
    const int number = text.left(colon).toInt(&isNumber);
    if (colon < 0 || !isNumber)
        return std::nullopt;
    return Algorithm{number, text.mid(colon + 1)};
}
