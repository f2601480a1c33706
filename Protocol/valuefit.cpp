#include "Protocol/valuefit.h"

#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valuecompare.h"

#include <QVariant>

#include <algorithm>

namespace
{

bool isInRange(const RuleProtocolItem& item, const QVariant& number)
{
    using Is = CheckRuleOperatorType;
    const QVariant& minimum = item.rangeMinimum();
    const QVariant& maximum = item.rangeMaximum();
    return (!minimum.isValid() || ValueCompare::holds(number, Is::GreaterOrEqual, minimum)) &&
           (!maximum.isValid() || ValueCompare::holds(number, Is::LessOrEqual, maximum));
}

bool isChoice(const RuleProtocolItem& item, const QString& text)
{
    const ValueType type = item.valueType();
    const QString wanted = ComparableText::of(text, type);
    const auto& choices = item.enumeration();
    return std::any_of(choices.begin(), choices.end(), [&](const EnumOption& choice) {
        return ComparableText::of(choice.value, type) == wanted;
    });
}

} // namespace

bool ValueFit::isPossible(const RuleProtocolItem& item, const QVariant& value)
{
    const QStringList texts = value.toStringList();
    switch (item.facade()) {
    case FacadeType::InputBoxNumber:
        return isInRange(item, value);
    case FacadeType::RadioButton:
        return isChoice(item, value.toString());
    case FacadeType::CheckBox:
        return std::all_of(texts.begin(), texts.end(),
                           [&item](const QString& text) { return isChoice(item, text); });
    default:
        return true;
    }
}
