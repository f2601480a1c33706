#include "Protocol/entrytarget.h"

#include <algorithm>
#include <utility>

using kql::Json::Value;

namespace
{

Value listOf(std::vector<Value> entries)
{
    Value list(kql::Json::ValueType::Array);
    list.reserve(entries.size());
    for (Value& entry : entries)
        list.append(std::move(entry));
    return list;
}

} // namespace

EntryTarget::EntryTarget(Value& document, const QString& parent, WhenMissing whenMissing)
    : m_document(document), m_path(parent), m_whenMissing(whenMissing)
{
}

bool EntryTarget::put(std::vector<Value> entries)
{
    const Value* before = skeleton();
    const bool isList = before && before->isArray();
    if (entries.empty() && !isList)
        return true;
    const bool isNothing = std::all_of(entries.begin(), entries.end(),
                                       [](const Value& entry) { return entry.empty(); });
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
    if (m_path.text().isEmpty())
        return false;
    Value* found = m_path.readPath(m_document);
    Value* target = found ? found : m_path.create(m_document);
    if (target)
        *target = std::move(value);
    return target;
}
