#include "Protocol/ruledatainfo.h"

#include "Protocol/entrykey.h"

#include <algorithm>

using kql::Json::Value;

namespace
{

const QVariant kNoValue;

} // namespace

void RuleDataInfo::setName(const QString& name)
{
    m_name = name;
    forgetAt(kNameSlot);
}

void RuleDataInfo::setEnabled(bool enabled)
{
    m_enabled = enabled;
    forgetAt(kEnabledSlot);
}

void RuleDataInfo::setValue(const QString& key, const QVariant& value)
{
    setAt(findOrAdd(key), value);
}

void RuleDataInfo::setValue(const EntryKey& key, const QVariant& value)
{
    const int slot = key.slotIn(*this);
    setAt(slot < 0 ? findOrAdd(key.text()) : slot, value);
}

QVariant RuleDataInfo::value(const QString& key) const
{
    const QVariant* const value = findAt(find(key));
    return value ? *value : QVariant();
}

const QVariant& RuleDataInfo::value(const EntryKey& key) const
{
    const QVariant* const value = findAt(key.slotIn(*this));
    return value ? *value : kNoValue;
}

bool RuleDataInfo::hasValue(const QString& key) const
{
    return findAt(find(key)) != nullptr;
}

void RuleDataInfo::keepAsRead(const EntryKey& key, const Value& json)
{
    const int slot = key.slotIn(*this);
    keepAt(slot < 0 ? findOrAdd(key.text()) : slot, json);
}

const Value* RuleDataInfo::asRead(const QString& key) const
{
    return m_kept.isEmpty() ? nullptr : keptAt(find(key));
}

const Value* RuleDataInfo::asRead(const EntryKey& key) const
{
    return m_kept.isEmpty() ? nullptr : keptAt(key.slotIn(*this));
}

void RuleDataInfo::keepAt(int slot, const Value& json)
{
    forgetAt(slot);
    m_kept.insert(static_cast<int>(keptFrom(slot) - m_kept.cbegin()), {json, slot});
}

const Value* RuleDataInfo::keptAt(int slot) const
{
    const auto kept = keptFrom(slot);
    return kept != m_kept.cend() && kept->slot == slot ? &kept->json : nullptr;
}

void RuleDataInfo::forgetAt(int slot)
{
    if (keptAt(slot))
        m_kept.removeAt(static_cast<int>(keptFrom(slot) - m_kept.cbegin()));
}

RuleDataInfo::Keeps::const_iterator RuleDataInfo::keptFrom(int slot) const
{
    return std::lower_bound(m_kept.cbegin(), m_kept.cend(), slot,
                            [](const Kept& kept, int wanted) { return kept.slot < wanted; });
}

bool RuleDataInfo::isValid(const QString& key) const
{
    return isValidAt(find(key));
}

bool RuleDataInfo::isValid(const EntryKey& key) const
{
    return isValidAt(key.slotIn(*this));
}

void RuleDataInfo::setValid(const QString& key, bool valid)
{
    if (isValid(key) == valid)
        return;
    const int slot = findOrAdd(key);
    if (slot >= m_invalid.size())
        m_invalid.resize(m_common->slotOf.size());
    m_invalid.setBit(slot, !valid);
}

void RuleDataInfo::shareValues()
{
    if (m_own.empty())
        return;
    m_common.detach();
    for (OwnValue& own : m_own)
        m_common->values[static_cast<std::size_t>(own.slot)] = std::move(own.value);
    m_own.clear();
}

void RuleDataInfo::takeCommonValues(const RuleDataInfo& other, int more)
{
    m_common = other.m_common;
    m_invalid = other.m_invalid;
    m_own.reserve(m_own.size() + static_cast<std::size_t>(more));
}

void RuleDataInfo::shareFlags(const RuleDataInfo& other)
{
    if (m_invalid == other.m_invalid)
        m_invalid = other.m_invalid;
}

int RuleDataInfo::find(const QString& key) const
{
    return m_common ? m_common->slotOf.value(key, -1) : -1;
}

int RuleDataInfo::findOrAdd(const QString& key)
{
    const int known = find(key);
    if (known >= 0)
        return known;
    if (!m_common)
        m_common = new Common;
    m_common.detach();
    const int slot = m_common->slotOf.size();
    m_common->slotOf.insert(key, slot);
    m_common->values.emplace_back();
    return slot;
}

RuleDataInfo::OwnValues::const_iterator RuleDataInfo::ownFrom(int slot) const
{
    return std::lower_bound(m_own.begin(), m_own.end(), slot,
                            [](const OwnValue& own, int wanted) { return own.slot < wanted; });
}

const QVariant* RuleDataInfo::findAt(int slot) const
{
    if (slot < 0)
        return nullptr;
    const auto own = ownFrom(slot);
    if (own != m_own.end() && own->slot == slot)
        return &own->value;
    const std::optional<QVariant>& common = m_common->values[static_cast<std::size_t>(slot)];
    return common ? &*common : nullptr;
}

void RuleDataInfo::setAt(int slot, const QVariant& value)
{
    forgetAt(slot);
    const std::optional<QVariant>& common = m_common->values[static_cast<std::size_t>(slot)];
    const bool isCommon = !value.isValid() && common && !common->isValid();
    const auto own = m_own.begin() + (ownFrom(slot) - m_own.cbegin());
    const bool isKnown = own != m_own.end() && own->slot == slot;
    if (isKnown && isCommon)
        m_own.erase(own);
    else if (isKnown)
        own->value = value;
    else if (!isCommon)
        m_own.insert(own, {value, slot});
}

bool RuleDataInfo::isValidAt(int slot) const
{
    return slot < 0 || slot >= m_invalid.size() || !m_invalid.testBit(slot);
}
