#include "Protocol/ruledatainfo.h"

#include <algorithm>
#include <utility>

using kql::Json::Value;

namespace
{

/// Any order will do; lengths are compared faster than texts.
template<typename Values>
auto placeOf(Values& values, const QString& key)
{
    return std::lower_bound(values.begin(), values.end(), key,
                            [](const auto& keyed, const QString& wanted) {
                                const int longer = keyed.key.size() - wanted.size();
                                return longer < 0 || (longer == 0 && keyed.key < wanted);
                            });
}

} // namespace

bool RuleDataInfo::operator==(const RuleDataInfo& other) const
{
    return m_id == other.m_id && m_enabled == other.m_enabled && m_name == other.m_name &&
           m_sourceIndex == other.m_sourceIndex && m_values == other.m_values &&
           m_invalid == other.m_invalid && m_kept == other.m_kept && m_source == other.m_source;
}

void RuleDataInfo::setSource(Value json)
{
    m_source = std::make_shared<const Value>(std::move(json));
}

void RuleDataInfo::setName(const QString& name)
{
    m_name = name;
    forget(Member::Name);
}

void RuleDataInfo::setEnabled(bool enabled)
{
    m_enabled = enabled;
    forget(Member::Enabled);
}

void RuleDataInfo::setValue(const QString& key, const QVariant& value)
{
    forget(Member::Attribute, key);
    const auto place = placeOf(m_values, key);
    if (place != m_values.end() && place->key == key)
        place->value = value;
    else
        m_values.insert(place, {key, value});
}

QVariant RuleDataInfo::value(const QString& key) const
{
    const QVariant* const value = find(key);
    return value ? *value : QVariant();
}

bool RuleDataInfo::hasValue(const QString& key) const
{
    return find(key);
}

const QVariant* RuleDataInfo::find(const QString& key) const
{
    const auto place = placeOf(m_values, key);
    return place != m_values.end() && place->key == key ? &place->value : nullptr;
}

void RuleDataInfo::keepAsRead(const QString& key, const Value& json)
{
    m_kept.insert({Member::Attribute, key}, json);
}

void RuleDataInfo::keepNameAsRead(const Value& json)
{
    m_kept.insert({Member::Name, {}}, json);
}

void RuleDataInfo::keepEnabledAsRead(const Value& json)
{
    m_kept.insert({Member::Enabled, {}}, json);
}

const Value* RuleDataInfo::asRead(const QString& key) const
{
    return kept(Member::Attribute, key);
}

const Value* RuleDataInfo::nameAsRead() const
{
    return kept(Member::Name);
}

const Value* RuleDataInfo::enabledAsRead() const
{
    return kept(Member::Enabled);
}

const Value* RuleDataInfo::kept(Member member, const QString& key) const
{
    if (m_kept.isEmpty())
        return nullptr;
    const auto found = m_kept.constFind({member, key});
    return found == m_kept.constEnd() ? nullptr : &*found;
}

void RuleDataInfo::forget(Member member, const QString& key)
{
    if (!m_kept.isEmpty())
        m_kept.remove({member, key});
}

bool RuleDataInfo::isMisfit(const QString& key) const
{
    const Value* const json = asRead(key);
    const bool isEmptyList = json && json->isArray() && json->empty();
    return json && !isEmptyList && !value(key).isValid();
}

bool RuleDataInfo::isValid(const QString& key) const
{
    return !std::binary_search(m_invalid.begin(), m_invalid.end(), key);
}

void RuleDataInfo::setValid(const QString& key, bool valid)
{
    if (isValid(key) == valid)
        return;
    const auto place = std::lower_bound(m_invalid.begin(), m_invalid.end(), key);
    if (valid)
        m_invalid.erase(place);
    else
        m_invalid.insert(place, key);
}
