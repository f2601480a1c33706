#include "host/json/members.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace kql
{
namespace Json
{

namespace
{

using rapidjson::SizeType;

constexpr SizeType kUnindexed = 64;

struct Entry {
    std::string_view name;
    SizeType position;
};
using Entries = std::vector<Entry>;

bool isIndexed(const Node& object)
{
    return object.MemberCount() > kUnindexed;
}

Node& indexOf(Node& object)
{
    return (object.MemberEnd() - 1)->value;
}

std::string_view nameAt(const Node& object, const Node& position)
{
    return textOf((object.MemberBegin() + position.GetUint())->name);
}

/// Of the members from a position to another, by their names, those of one name in their order.
Entries sortedEntries(const Node& object, SizeType from, SizeType to)
{
    Entries entries;
    entries.reserve(to - from);
    for (SizeType position = from; position < to; ++position)
        entries.push_back({textOf((object.MemberBegin() + position)->name), position});
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry& one, const Entry& other) { return one.name < other.name; });
    return entries;
}

void append(Node& index, const Entries& entries)
{
    rapidjson::CrtAllocator heap;
    index.Reserve(index.Size() + SizeType(entries.size()), heap);
    for (const Entry& entry : entries)
        index.PushBack(entry.position, heap);
}

void addIndex(Node& object, const Entries& entries)
{
    rapidjson::CrtAllocator heap;
    Node index(rapidjson::kArrayType);
    append(index, entries);
    object.AddMember(Node(rapidjson::kStringType), index, heap);
}

/// Puts the members into the index that were added last.
void extendIndex(Node& object)
{
    Node& index = indexOf(object);
    const SizeType known = index.Size();
    append(index, sortedEntries(object, known, object.MemberCount() - 1));
    std::inplace_merge(index.Begin(), index.Begin() + known, index.End(),
                       [&object](const Node& one, const Node& other) {
                           return nameAt(object, one) < nameAt(object, other);
                       });
}

/// Of an object without an index.
bool namesDiffer(const Node& object)
{
    std::array<std::string_view, kUnindexed> names;
    auto end = names.begin();
    for (auto member = object.MemberBegin(); member != object.MemberEnd(); ++member) {
        const std::string_view name = textOf(member->name);
        if (std::find(names.begin(), end, name) != end)
            return false;
        *end++ = name;
    }
    return true;
}

/// Leaves one of the members of each name, and its entry with the position that it has then.
void dropDoubles(Node& object, Entries& entries)
{
    const auto members = object.MemberBegin();
    std::vector<SizeType> dropped;
    auto first = entries.begin();
    for (auto entry = first + 1; entry != entries.end(); ++entry) {
        if (entry->name != first->name) {
            *++first = *entry;
            continue;
        }
        (members + first->position)->value = std::move((members + entry->position)->value);
        (members + entry->position)->name.SetNull();
        dropped.push_back(entry->position);
    }
    entries.erase(first + 1, entries.end());
    std::sort(dropped.begin(), dropped.end());
    for (Entry& entry : entries) {
        const auto from = std::lower_bound(dropped.begin(), dropped.end(), entry.position);
        entry.position -= SizeType(from - dropped.begin());
    }
    const auto isDropped = [](const Node::Member& member) { return member.name.IsNull(); };
    object.EraseMember(std::remove_if(members, object.MemberEnd(), isDropped), object.MemberEnd());
}

void completeObject(Node& object)
{
    if (!isIndexed(object) && namesDiffer(object))
        return;
    Entries entries = sortedEntries(object, 0, object.MemberCount());
    dropDoubles(object, entries);
    if (isIndexed(object))
        addIndex(object, entries);
}

} // namespace

Node textNode(std::string_view utf8)
{
    rapidjson::CrtAllocator heap;
    return utf8.empty() ? Node(rapidjson::kStringType)
                        : Node(utf8.data(), SizeType(utf8.size()), heap);
}

int Members::count(const Node& object)
{
    return int(object.MemberCount()) - int(isIndexed(object));
}

const Node* Members::find(const Node& object, std::string_view name)
{
    const auto members = object.MemberBegin();
    int position = 0;
    if (isIndexed(object)) {
        const Node& index = (object.MemberEnd() - 1)->value;
        const Node* const found = std::lower_bound(
            index.Begin(), index.End(), name, [&object](const Node& at, std::string_view wanted) {
                return nameAt(object, at) < wanted;
            });
        if (found != index.End() && nameAt(object, *found) == name)
            return &(members + found->GetInt())->value;
        position = int(index.Size());
    }
    for (const int end = count(object); position < end; ++position) {
        if (textOf((members + position)->name) == name)
            return &(members + position)->value;
    }
    return nullptr;
}

Node& Members::add(Node& object, Node&& name)
{
    rapidjson::CrtAllocator heap;
    const bool wasIndexed = isIndexed(object);
    object.AddMember(std::move(name), Node(), heap);
    if (wasIndexed) {
        std::swap(*(object.MemberEnd() - 2), *(object.MemberEnd() - 1));
        if (SizeType(count(object)) - indexOf(object).Size() > kUnindexed)
            extendIndex(object);
    } else if (isIndexed(object)) {
        addIndex(object, sortedEntries(object, 0, object.MemberCount()));
    }
    return (object.MemberBegin() + (count(object) - 1))->value;
}

void Members::remove(Node& object, const Node& value)
{
    if (isIndexed(object))
        object.EraseMember(object.MemberEnd() - 1);
    object.EraseMember(
        std::find_if(object.MemberBegin(), object.MemberEnd(),
                     [&value](const Node::Member& member) { return &member.value == &value; }));
    if (isIndexed(object))
        addIndex(object, sortedEntries(object, 0, object.MemberCount()));
}

void Members::complete(Node& document)
{
    if (document.IsArray())
        std::for_each(document.Begin(), document.End(), complete);
    if (!document.IsObject())
        return;
    std::for_each(document.MemberBegin(), document.MemberEnd(),
                  [](Node::Member& member) { complete(member.value); });
    completeObject(document);
}

} // namespace Json
} // namespace kql
