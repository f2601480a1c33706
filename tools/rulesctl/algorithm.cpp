#include "tools/rulesctl/algorithm.h"

#include <algorithm>

std::optional<Algorithm> Algorithm::parse(const QString& text)
{
    const int colon = text.indexOf(QLatin1Char(':'));
    const QString digits = text.left(colon);
    const int sign = digits.startsWith(QLatin1Char('-')) ? 1 : 0;
    const bool isPlain = std::all_of(digits.begin() + sign, digits.end(), [](QChar character) {
        return character >= QLatin1Char('0') && character <= QLatin1Char('9');
    });
    bool isNumber = false;
    const int number = digits.toInt(&isNumber);
    if (colon < 0 || !isPlain || !isNumber)
        return std::nullopt;
    return Algorithm{number, text.mid(colon + 1)};
}
