#include "Protocol/entrytarget.h"

#include "Protocol/entrylist.h"

#include <utility>

using kql::Json::Value;

namespace
{

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
    return EntryList::object(EntryList::getJsonItemList(skeleton()), 0);
}

void EntryTarget::put(std::vector<Value> entries)
{
    const Value* before = skeleton();
    const bool isList = before && before->isArray();
    if (entries.empty() && !isList)
        return;
    const bool isObject = before && before->isObject();
    if (isObject || (!isList && m_whenMissing == WhenMissing::Object))
        replace(std::move(entries.front()));
    else
        replace(listOf(std::move(entries)));
}

void EntryTarget::replace(Value value)
{
    if (Value* target = place())
        *target = std::move(value);
}

Value* EntryTarget::place() const
{
    if (m_path.text().isEmpty())
        return nullptr;
    Value* found = m_path.readPath(m_document);
    return found ? found : m_path.create(m_document);
}
