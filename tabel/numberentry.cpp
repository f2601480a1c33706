#include "tabel/numberentry.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QLocale>
#include <algorithm>
#include <limits>

namespace
{

struct Range {
    double bottom;
    double top;
};

/// The ends of the type are those of a range that is open there.
double limit(int value)
{
    const double infinity = std::numeric_limits<double>::infinity();
    if (value == std::numeric_limits<int>::min())
        return -infinity;
    return value == std::numeric_limits<int>::max() ? infinity : value;
}

Range rangeOf(const QValidator& validator)
{
    if (const auto* whole = qobject_cast<const QIntValidator*>(&validator))
        return {limit(whole->bottom()), limit(whole->top())};
    const auto& fractions = static_cast<const QDoubleValidator&>(validator);
    return {fractions.bottom(), fractions.top()};
}

bool isSign(QChar letter)
{
    return QStringLiteral("+-.,").contains(letter);
}

/// Fewer texts than QString::toDouble() takes, which knows "inf" and "1e9".
bool isPlainNumber(const QString& text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar letter) { return letter.isDigit() || isSign(letter); });
}

NumberEntry::Fate fateOf(const NumberEntry& entry, const QValidator& validator)
{
    using Fate = NumberEntry::Fate;
    QString result = entry.result;
    int cursor = result.size();
    if (validator.validate(result, cursor) != QValidator::Invalid)
        return Fate::Taken;
    bool isNumber = isPlainNumber(entry.result);
    const double number = isNumber ? entry.result.toDouble(&isNumber) : 0;
    if (isNumber && number > rangeOf(validator).top)
        return Fate::Above;
    // Where nothing is below 0 the number is no longer one: its sign is what is wrong.
    const double bottom = rangeOf(validator).bottom;
    if (isNumber && bottom < 0 && number < bottom)
        return Fate::Below;
    const bool isKey = entry.text.size() == 1;
    return isKey && !isSign(entry.text[0]) ? Fate::Dropped : Fate::Refused;
}

} // namespace

NumberEntry::NumberEntry(const QString& input, const QString& before, int position,
                         const QValidator& validator)
    : text(input), isCut(false)
{
    if (qobject_cast<const QIntValidator*>(&validator)) {
        const auto point = std::find_if(text.begin(), text.end(), [](QChar letter) {
            return letter == QLatin1Char(',') || letter == QLatin1Char('.');
        });
        isCut = point != text.end();
        text.truncate(int(point - text.begin()));
    } else {
        text.replace(QLatin1Char(','), QLatin1Char('.'));
    }
    result = QString(before).insert(position, text);
    fate = fateOf(*this, validator);
}

bool NumberEntry::isFor(const QValidator* validator)
{
    return qobject_cast<const QIntValidator*>(validator) ||
           qobject_cast<const QDoubleValidator*>(validator);
}

QString NumberEntry::minimum(const QValidator& validator)
{
    return QString::number(rangeOf(validator).bottom, 'f', QLocale::FloatingPointShortest);
}
