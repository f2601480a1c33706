#include "tools/rulesctl/lint/conditions.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valuecompare.h"

#include <QSet>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace
{

bool hasOneValue(const RuleProtocolItem& controller)
{
    const FacadeType facade = controller.facade();
    return facade == FacadeType::RadioButton || facade == FacadeType::Bool ||
           facade == FacadeType::InputBoxNumber;
}

bool haveCommon(const Conditions::Values& one, const Conditions::Values& other)
{
    const bool areApart = !one.empty() && !other.empty() &&
                          (one.back() < other.front() || other.back() < one.front());
    if (areApart)
        return false;
    auto first = one.begin();
    auto second = other.begin();
    while (first != one.end() && second != other.end() && *first != *second)
        *first < *second ? ++first : ++second;
    return first != one.end() && second != other.end();
}

/// As the row holds the choice, which of a number is one.
QString heldText(const QString& choice, ValueType type)
{
    return type == ValueType::Int ? QString::number(choice.toInt())
                                  : ComparableText::of(choice, type);
}

bool isWholeNumber(const QString& text)
{
    return QString::number(text.toInt()) == text;
}

/// Whether a number compares as @p text, which whole ones that a double cannot hold do not.
bool isReal(const QString& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) &&
           ComparableText::of(QVariant(number).toString(), ValueType::Float) == text;
}

bool isSwitch(const QString& text)
{
    return text == QLatin1String("true") || text == QLatin1String("false");
}

/// Whether what is read of @p type compares as @p text.
bool isOfType(ValueType type, const QString& text)
{
    switch (type) {
    case ValueType::Bool:
        return isSwitch(text);
    case ValueType::Int:
        return isWholeNumber(text);
    case ValueType::Float:
        return isReal(text);
    case ValueType::ArrayInt:
        return text.isEmpty(); // which a pair is as text
    case ValueType::Point:
        return false;
    default:
        return true;
    }
}

/// Whether @p controller, which has no choices, can have a value that compares as @p text.
bool canHave(const RuleProtocolItem& controller, const QString& text)
{
    if (controller.isFigure())
        return false; // it has points, and no value
    const ValueType type = controller.valueType();
    switch (controller.facade()) {
    case FacadeType::Bool:
        return isSwitch(text);
    case FacadeType::InputBoxNumber:
        return (type != ValueType::Int && type != ValueType::Float) || isOfType(type, text);
    case FacadeType::NumericalInterval:
        return text.isEmpty() || isOfType(type, text);
    default:
        return isOfType(type, text);
    }
}

} // namespace

const RuleProtocolItem* Conditions::controllerOf(const RuleProtocolItem& item)
{
    return ownOf(item).controller;
}

Conditions::Chain Conditions::chainOf(const RuleProtocolItem& item, Values Own::*which)
{
    Chain chain;
    QSet<const RuleProtocolItem*> visited; // they may name each other in a circle
    for (const RuleProtocolItem* next = &item; next && !visited.contains(next);) {
        visited.insert(next);
        const Own& own = ownOf(*next);
        if (own.controller)
            chain.push_back({own.controller, &(own.*which)});
        next = own.controller;
    }
    std::stable_sort(chain.begin(), chain.end(), [](const Wanted& a, const Wanted& b) {
        return std::less<>()(a.controller, b.controller);
    });
    return chain;
}

/// In a circle one controller may be asked for twice.
bool Conditions::canBeMet(const RuleProtocolItem& item)
{
    const Chain chain = chainOf(item, &Own::possible);
    const bool isOpen = std::none_of(chain.begin(), chain.end(),
                                     [](const Wanted& wanted) { return wanted.values->empty(); });
    return isOpen && !exclude(chain, chain);
}

/// Both are walked through once; those of one controller, mostly one, are compared with each other.
bool Conditions::exclude(const Chain& one, const Chain& other)
{
    auto from = other.begin();
    for (const Wanted& wanted : one) {
        while (from != other.end() && std::less<>()(from->controller, wanted.controller))
            ++from;
        for (auto same = from; same != other.end() && same->controller == wanted.controller;
             ++same) {
            if (hasOneValue(*wanted.controller) && !haveCommon(*wanted.values, *same->values))
                return true;
        }
    }
    return false;
}

const Conditions::Own& Conditions::ownOf(const RuleProtocolItem& item)
{
    const auto known = m_own.find(&item);
    if (known != m_own.end())
        return known->second;
    Own own;
    if (!item.validity().isEmpty() && !item.validity().first().values.isEmpty()) {
        const ValidCondition& condition = item.validity().first();
        own.controller = m_template.findItem(condition.controlKey);
        if (own.controller) {
            const bool hasSpellings = ComparableText::hasSpellings(own.controller->valueType());
            const QStringList& texts = hasSpellings ? condition.comparable : condition.values;
            own.values = numbersOf(texts);
            own.possible = possibleOf(*own.controller, texts, own.values);
        }
    }
    return m_own.emplace(&item, std::move(own)).first->second;
}

Conditions::Values Conditions::numbersOf(const QStringList& texts)
{
    Values numbers;
    for (const QString& text : texts) {
        const auto known = m_numbers.constFind(text);
        numbers.push_back(known == m_numbers.constEnd() ? *m_numbers.insert(text, m_numbers.size())
                                                        : *known);
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

const Conditions::Values& Conditions::choicesOf(const RuleProtocolItem& controller)
{
    const auto known = m_choices.find(&controller);
    if (known != m_choices.end())
        return known->second;
    QStringList texts;
    for (const EnumOption& option : controller.enumeration())
        texts.append(heldText(option.value, controller.valueType()));
    return m_choices.emplace(&controller, numbersOf(texts)).first->second;
}

Conditions::Values Conditions::possibleOf(const RuleProtocolItem& controller,
                                          const QStringList& texts, const Values& values)
{
    const FacadeType facade = controller.facade();
    if (facade == FacadeType::RadioButton || facade == FacadeType::CheckBox) {
        const Values& choices = choicesOf(controller);
        Values common;
        std::set_intersection(values.begin(), values.end(), choices.begin(), choices.end(),
                              std::back_inserter(common));
        return common;
    }
    QStringList possible;
    std::copy_if(texts.begin(), texts.end(), std::back_inserter(possible),
                 [&controller](const QString& text) { return canHave(controller, text); });
    return numbersOf(possible);
}
