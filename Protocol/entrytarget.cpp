#include "Protocol/entrytarget.h"

#include <algorithm>
#include <utility>

using kql::Json::Value;

namespace
{

bool areAllEmpty(const std::vector<Value>& entries)
{
    return std::all_of(entries.begin(), entries.end(),
                       [](const Value& entry) { return entry.empty(); });
}

Value listOf(std::vector<Value> entries)
{
    Value list(kql::Json::ValueType::Array);
    for (Value& entry : entries)
        list.append(std::move(entry));
    return list;
}

} // namespace

EntryTarget::EntryTarget(Value& document, const QString& parent, WhenMissing whenMissing)
    : m_document(document), m_path(parent), m_whenMissing(whenMissing)
{
}

const Value* EntryTarget::prototype() const
{
    return m_path.firstEntryIn(m_document);
}

bool EntryTarget::put(std::vector<Value> entries)
{
    const Value* before = skeleton();
    const bool isList = before && before->isArray();
    if (entries.empty() && !isList)
        return true;
    const bool isNothing = areAllEmpty(entries);
    const bool isObject = before && before->isObject();
    if (isObject || (!isList && m_whenMissing == WhenMissing::Object))
        return putAlone(std::move(entries.front()));
    return replace(listOf(std::move(entries))) || isNothing;
}

bool EntryTarget::putAlone(Value entry)
{
    const bool isNothing = entry.empty();
    return replace(std::move(entry)) || isNothing;
}

/// Replaces whatever is there; false when the place cannot be made.
bool EntryTarget::replace(Value value)
{
    Value* target = place();
    if (target)
        *target = std::move(value);
    return target;
}

Value* EntryTarget::place() const
{
    if (m_path.text().isEmpty())
        return nullptr;
    Value* found = m_path.readPath(m_document);
    return found ? found : m_path.create(m_document);
}
