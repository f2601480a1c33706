#include "Protocol/validity.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"

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
    return {value.toString()};
}

const RuleProtocolItem* controllerOf(const DataTemplate& dataTemplate,
                                     const ValidCondition& condition)
{
    return condition.values.isEmpty() ? nullptr : dataTemplate.findItem(condition.controlKey);
}

/// A condition that names no item or lists no values does not count.
bool isMet(const DataTemplate& dataTemplate, const RuleDataInfo& entry,
           const ValidCondition& condition)
{
    const RuleProtocolItem* const controller = controllerOf(dataTemplate, condition);
    if (!controller)
        return true;
    const QStringList current = currentValues(*controller, entry);
    return std::any_of(current.begin(), current.end(), [&condition](const QString& value) {
        return condition.values.contains(value);
    });
}

bool allMet(const DataTemplate& dataTemplate, const RuleDataInfo& entry,
            const RuleProtocolItem& item)
{
    return std::all_of(
        item.validity().begin(), item.validity().end(),
        [&](const ValidCondition& condition) { return isMet(dataTemplate, entry, condition); });
}

} // namespace

void Validity::update(const DataTemplate& dataTemplate, RuleDataInfo& entry)
{
    for (const auto& item : dataTemplate.items()) {
        if (!item->validity().isEmpty())
            update(dataTemplate, entry, *item);
    }
}

void Validity::update(const DataTemplate& dataTemplate, RuleDataInfo& entry,
                      const RuleProtocolItem& item)
{
    entry.setValid(item.key(), allMet(dataTemplate, entry, item));
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
    for (const auto& item : dataTemplate.items()) {
        for (const ValidCondition& condition : item->validity()) {
            if (const RuleProtocolItem* const controller = controllerOf(dataTemplate, condition))
                controlled[controller].append(item.get());
        }
        if (!allMet(dataTemplate, entry, *item))
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
