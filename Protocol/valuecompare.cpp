#include "Protocol/valuecompare.h"

#include <QVariant>
#include <cmath>
#include <optional>

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

} // namespace

bool ValueCompare::holds(const QVariant& first, CheckRuleOperatorType operatorType,
                         const QVariant& second)
{
    if (const std::optional<int> ordered = order(first, second))
        return holdsInOrder(*ordered, operatorType);
    return operatorType != CheckRuleOperatorType::Equal || first == second;
}
