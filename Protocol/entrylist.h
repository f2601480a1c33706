#pragma once

#include <vector>

class JsonPath;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// The entries that a configuration lists at a path.
namespace EntryList
{

using Entries = std::vector<const kql::Json::Value*>;

/// The elements of an array, or an object as the only entry; else none. @p parent may be null.
Entries getJsonItemList(const kql::Json::Value* parent);

/// The object at @p index in @p entries; null outside and for other kinds.
const kql::Json::Value* object(const Entries& entries, int index);

/// The entries of @p document at @p parent, without a log when there are none.
Entries at(const kql::Json::Value& document, const JsonPath& parent);

} // namespace EntryList
