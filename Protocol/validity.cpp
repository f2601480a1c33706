#include "Protocol/validity.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valuecompare.h"

#include <QHash>

#include <algorithm>

namespace
{

/// What a condition compares with: every text of a list, any other value as one text.
QStringList currentValues(const RuleProtocolItem& controller, const RuleDataInfo& entry)
{
    const QVariant value = entry.value(controller.key());
    if (controller.facade() == FacadeType::Bool)
        return {QVariant(value.toBool()).toString()}; // a switch without a value shows as off
    if (!value.isValid())
        return {};
    if (value.userType() == QMetaType::QStringList)
        return value.toStringList();
    return {ComparableText::of(value.toString(), controller.valueType())};
}

const RuleProtocolItem* controllerOf(const DataTemplate& dataTemplate,
                                     const ValidCondition& condition)
{
    return condition.values.isEmpty() ? nullptr : dataTemplate.findItem(condition.controlKey);
}

/// Tells which items' conditions one entry meets, as long as its values stay.
class Conditions
{
public:
    Conditions(const DataTemplate& dataTemplate, const RuleDataInfo& entry)
        : m_template(dataTemplate), m_entry(entry)
    {
    }

    bool allMet(const RuleProtocolItem& item)
    {
        return std::all_of(item.validity().begin(), item.validity().end(),
                           [this](const ValidCondition& condition) { return isMet(condition); });
    }

private:
    /// A condition that names no item or lists no values does not count.
    bool isMet(const ValidCondition& condition)
    {
        const RuleProtocolItem* const controller = controllerOf(m_template, condition);
        if (!controller)
            return true;
        const bool hasSpellings = ComparableText::hasSpellings(controller->valueType());
        const QStringList& wanted = hasSpellings ? condition.comparable : condition.values;
        const QStringList current = currentOf(*controller);
        if (current.size() <= kFew)
            return std::any_of(current.begin(), current.end(),
                               [&](const QString& text) { return wanted.contains(text); });
        // Both lists may be as long as documents are, and many conditions name one controller.
        QStringList& sorted = m_longLists[controller];
        if (sorted.isEmpty()) {
            sorted = current;
            std::sort(sorted.begin(), sorted.end());
        }
        return std::any_of(wanted.begin(), wanted.end(), [&sorted](const QString& text) {
            return std::binary_search(sorted.cbegin(), sorted.cend(), text);
        });
    }

    /// What is long to compare is made so once.
    QStringList currentOf(const RuleProtocolItem& controller)
    {
        if (!ComparableText::hasSpellings(controller.valueType()))
            return currentValues(controller, m_entry);
        const auto known = m_spelled.constFind(&controller);
        if (known != m_spelled.constEnd())
            return *known;
        return *m_spelled.insert(&controller, currentValues(controller, m_entry));
    }

    static constexpr int kFew = 8;

    const DataTemplate& m_template;
    const RuleDataInfo& m_entry;
    QHash<const RuleProtocolItem*, QStringList> m_longLists;
    QHash<const RuleProtocolItem*, QStringList> m_spelled;
};

} // namespace

void Validity::update(const DataTemplate& dataTemplate, RuleDataInfo& entry)
{
    Conditions conditions(dataTemplate, entry);
    for (const auto& item : dataTemplate.items()) {
        if (!item->validity().isEmpty())
            entry.setValid(item->key(), conditions.allMet(*item));
    }
}

void Validity::update(const DataTemplate& dataTemplate, RuleDataInfo& entry,
                      const QVector<const RuleProtocolItem*>& items)
{
    Conditions conditions(dataTemplate, entry);
    for (const RuleProtocolItem* item : items)
        entry.setValid(item->key(), conditions.allMet(*item));
}

Validity::Dependents Validity::dependents(const DataTemplate& dataTemplate)
{
    Dependents dependents;
    for (const auto& item : dataTemplate.items()) {
        for (const ValidCondition& condition : item->validity()) {
            QVector<const RuleProtocolItem*>& named = dependents[condition.controlKey];
            if (named.isEmpty() || named.last() != item.get())
                named.append(item.get());
        }
    }
    return dependents;
}

QSet<const RuleProtocolItem*> Validity::hiddenItems(const DataTemplate& dataTemplate,
                                                    const RuleDataInfo& entry)
{
    QHash<const RuleProtocolItem*, QVector<const RuleProtocolItem*>> controlled;
    QVector<const RuleProtocolItem*> toVisit;
    Conditions conditions(dataTemplate, entry);
    for (const auto& item : dataTemplate.items()) {
        for (const ValidCondition& condition : item->validity()) {
            if (const RuleProtocolItem* const controller = controllerOf(dataTemplate, condition))
                controlled[controller].append(item.get());
        }
        if (!conditions.allMet(*item))
            toVisit.append(item.get());
    }
    QSet<const RuleProtocolItem*> hidden;
    while (!toVisit.isEmpty()) {
        const RuleProtocolItem* const item = toVisit.takeLast();
        if (hidden.contains(item)) // items may control each other
            continue;
        hidden.insert(item);
        toVisit += controlled.value(item);
    }
    return hidden;
}
