#pragma once

#include <rapidjson/document.h>

#include <string_view>

namespace kql
{
namespace Json
{

/// RapidJSON's value. Every array, object and long text has memory of its own, so that each can be
/// changed and let go alone.
using Node = rapidjson::GenericValue<rapidjson::UTF8<>, rapidjson::CrtAllocator>;

/// A text that owns its bytes.
Node textNode(std::string_view utf8);

inline std::string_view textOf(const Node& text)
{
    return {text.GetString(), text.GetStringLength()};
}

/**
 * What RapidJSON lacks for the members of an object, which stay in the order in which they were
 * added.
 *
 * It searches from the front, which takes minutes in the objects that strangers can send. So an
 * object of more than 64 members has an index as one member more, at its end: the positions of the
 * members, sorted by their names. Of those that were added last up to 64 are not in it yet.
 * Sorting needs no hash, of which somebody could choose names that share one.
 */
namespace Members
{

/// Without the index.
int count(const Node& object);

/// Null where there is none of that name.
const Node* find(const Node& object, std::string_view name);

/// Adds a member, null as yet, of a name that the object has not.
Node& add(Node& object, Node&& name);

/// Removes a member, which is one of the object's.
void remove(Node& object, const Node& value);

/// Makes what a parser left into a document of such objects. Of members with the same name the
/// last counts, in the place of the first.
void complete(Node& document);

} // namespace Members

} // namespace Json
} // namespace kql
