#include "Protocol/valuecompare.h"

#include "host/json/reader.h"
#include "host/json/value.h"

#include <QVariant>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>
#include <vector>

using kql::Json::Value;

namespace
{

bool isScalar(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
    case QMetaType::QString:
        return true;
    default:
        return false;
    }
}

std::optional<double> toNumber(const QVariant& value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    // Qt takes "nan" and "inf" for numbers, which have no order or no end.
    return isNumber && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

/// Below, at or above 0 as @p first is before, equal to or behind @p second; nothing when the
/// two have no order.
std::optional<int> order(const QVariant& first, const QVariant& second)
{
    if (!isScalar(first) || !isScalar(second))
        return std::nullopt;
    const std::optional<double> a = toNumber(first);
    const std::optional<double> b = toNumber(second);
    if (a && b)
        return *a < *b ? -1 : (*a > *b ? 1 : 0);
    return first.toString().compare(second.toString());
}

bool holdsInOrder(int order, CheckRuleOperatorType operatorType)
{
    switch (operatorType) {
    case CheckRuleOperatorType::Greater:
        return order > 0;
    case CheckRuleOperatorType::Less:
        return order < 0;
    case CheckRuleOperatorType::Equal:
        return order == 0;
    case CheckRuleOperatorType::GreaterOrEqual:
        return order >= 0;
    case CheckRuleOperatorType::LessOrEqual:
        return order <= 0;
    default:
        return true;
    }
}

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

bool ValueCompare::holds(const QVariant& first, CheckRuleOperatorType operatorType,
                         const QVariant& second)
{
    if (const std::optional<int> ordered = order(first, second))
        return holdsInOrder(*ordered, operatorType);
    return operatorType != CheckRuleOperatorType::Equal || first == second;
}

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
