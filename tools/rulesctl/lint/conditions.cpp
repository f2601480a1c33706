#include "tools/rulesctl/lint/conditions.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valuecompare.h"

#include <QSet>

#include <algorithm>

namespace
{

/// As the row holds the choice, which of a number is one.
QString heldText(const QString& choice, ValueType type)
{
    return type == ValueType::Int ? QString::number(choice.toInt())
                                  : ComparableText::of(choice, type);
}

bool isPossible(const RuleProtocolItem& controller, const QString& text)
{
    switch (controller.facade()) {
    case FacadeType::Bool:
        return text == QLatin1String("true") || text == QLatin1String("false");
    case FacadeType::RadioButton:
    case FacadeType::CheckBox: {
        const auto& options = controller.enumeration();
        return std::any_of(options.begin(), options.end(), [&](const EnumOption& option) {
            return heldText(option.value, controller.valueType()) == text;
        });
    }
    case FacadeType::InputBoxNumber:
        return controller.valueType() != ValueType::Int || QString::number(text.toInt()) == text;
    default:
        return true;
    }
}

bool haveCommon(const QStringList& one, const QStringList& other)
{
    return std::any_of(one.begin(), one.end(),
                       [&other](const QString& text) { return other.contains(text); });
}

} // namespace

const RuleProtocolItem* Conditions::controllerOf(const DataTemplate& dataTemplate,
                                                 const ValidCondition& condition)
{
    return condition.values.isEmpty() ? nullptr : dataTemplate.findItem(condition.controlKey);
}

std::vector<Conditions::Wanted> Conditions::of(const DataTemplate& dataTemplate,
                                               const RuleProtocolItem& item)
{
    std::vector<Wanted> wanted;
    std::vector<const RuleProtocolItem*> toVisit{&item};
    QSet<const RuleProtocolItem*> visited;
    while (!toVisit.empty()) {
        const RuleProtocolItem* const next = toVisit.back();
        toVisit.pop_back();
        if (visited.contains(next)) // they may name each other in a circle
            continue;
        visited.insert(next);
        for (const ValidCondition& condition : next->validity()) {
            const RuleProtocolItem* const controller = controllerOf(dataTemplate, condition);
            if (!controller)
                continue;
            const bool hasSpellings = ComparableText::hasSpellings(controller->valueType());
            wanted.push_back({controller, hasSpellings ? condition.comparable : condition.values});
            toVisit.push_back(controller);
        }
    }
    return wanted;
}

bool Conditions::hasOneValue(const RuleProtocolItem& controller)
{
    const FacadeType facade = controller.facade();
    return facade == FacadeType::RadioButton || facade == FacadeType::Bool ||
           facade == FacadeType::InputBoxNumber;
}

QStringList Conditions::possible(const RuleProtocolItem& controller, const QStringList& wanted)
{
    QStringList left;
    for (const QString& text : wanted) {
        if (isPossible(controller, text))
            left.append(text);
    }
    return left;
}

bool Conditions::exclude(const std::vector<Wanted>& one, const std::vector<Wanted>& other)
{
    const auto isExcluded = [&other](const Wanted& wanted) {
        return hasOneValue(*wanted.controller) &&
               std::any_of(other.begin(), other.end(), [&wanted](const Wanted& against) {
                   return against.controller == wanted.controller &&
                          !haveCommon(wanted.values, against.values);
               });
    };
    return std::any_of(one.begin(), one.end(), isExcluded);
}
