#include "Protocol/entrylist.h"

#include "Protocol/jsonpath.h"
#include "host/json/value.h"

using kql::Json::Value;

EntryList::Entries EntryList::getJsonItemList(const Value* parent)
{
    Entries entries;
    if (parent && parent->isObject())
        entries.push_back(parent);
    if (!parent || !parent->isArray())
        return entries;
    entries.reserve(static_cast<std::size_t>(parent->size()));
    for (int i = 0; i < parent->size(); ++i)
        entries.push_back(&(*parent)[i]);
    return entries;
}

const Value* EntryList::object(const Entries& entries, int index)
{
    if (index < 0 || index >= static_cast<int>(entries.size()))
        return nullptr;
    const Value* entry = entries[static_cast<std::size_t>(index)];
    return entry->isObject() ? entry : nullptr;
}

EntryList::Entries EntryList::at(const Value& document, const JsonPath& parent)
{
    return getJsonItemList(parent.probe(document));
}
