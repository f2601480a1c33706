#include "Protocol/ruledatainfo.h"

#include <algorithm>

void RuleDataInfo::setValue(const QString& key, const QVariant& value)
{
    Slot& slot = slotFor(key);
    slot.value = value;
    slot.hasValue = true;
}

QVariant RuleDataInfo::value(const QString& key) const
{
    const Slot* const slot = find(key);
    return slot ? slot->value : QVariant();
}

bool RuleDataInfo::hasValue(const QString& key) const
{
    const Slot* const slot = find(key);
    return slot && slot->hasValue;
}

bool RuleDataInfo::isValid(const QString& key) const
{
    const Slot* const slot = find(key);
    return !slot || slot->valid;
}

void RuleDataInfo::setValid(const QString& key, bool valid)
{
    slotFor(key).valid = valid;
}

const RuleDataInfo::Slot* RuleDataInfo::find(const QString& key) const
{
    const auto place =
        std::lower_bound(m_slots.begin(), m_slots.end(), key,
                         [](const Slot& slot, const QString& wanted) { return slot.key < wanted; });
    return place != m_slots.end() && place->key == key ? &*place : nullptr;
}

RuleDataInfo::Slot& RuleDataInfo::slotFor(const QString& key)
{
    if (const Slot* const slot = find(key))
        return const_cast<Slot&>(*slot);
    const auto place =
        std::upper_bound(m_slots.begin(), m_slots.end(), key,
                         [](const QString& wanted, const Slot& slot) { return wanted < slot.key; });
    return *m_slots.insert(place, Slot{key, QVariant(), false, true});
}
