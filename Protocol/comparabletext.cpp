#include "Protocol/comparabletext.h"

#include "host/json/reader.h"
#include "host/json/value.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

using kql::Json::Value;

namespace
{

void append(QString& text, const Value& value);

void appendMembers(QString& text, const Value& object)
{
    std::vector<int> positions(static_cast<std::size_t>(object.size()));
    std::iota(positions.begin(), positions.end(), 0);
    std::sort(positions.begin(), positions.end(), [&object](int first, int second) {
        return object.memberName(first) < object.memberName(second);
    });
    for (const int position : positions) {
        text += Value(object.memberName(position)).toCompactText() + QLatin1Char(':');
        append(text, object.memberValue(position));
        text += QLatin1Char(',');
    }
}

QString numberText(const Value& number)
{
    constexpr double kEndOfInts = 9223372036854775808.0;
    const double real = number.asDouble();
    const bool isWhole = std::abs(real) < kEndOfInts && std::trunc(real) == real;
    return (number.isDouble() && isWhole ? Value(static_cast<qint64>(real)) : number)
        .toCompactText();
}

/// As no document is written, but told apart from every other value.
void append(QString& text, const Value& value)
{
    if (value.isObject()) {
        text += QLatin1Char('{');
        appendMembers(text, value);
        text += QLatin1Char('}');
    } else if (value.isArray()) {
        text += QLatin1Char('[');
        for (int i = 0; i < value.size(); ++i) {
            append(text, value[i]);
            text += QLatin1Char(',');
        }
        text += QLatin1Char(']');
    } else {
        text += value.isNumeric() ? numberText(value) : value.toCompactText();
    }
}

} // namespace

bool ComparableText::hasSpellings(ValueType type)
{
    return type == ValueType::Object || type == ValueType::Float;
}

QString ComparableText::of(const QString& text, ValueType type)
{
    Value value;
    if (!hasSpellings(type) || !kql::Json::Reader().parse(text, value))
        return text;
    QString comparable;
    append(comparable, value);
    return comparable == text ? text : comparable; // the text itself can be shared
}
