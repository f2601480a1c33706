#pragma once

#include "host/json/fwd.h"

class RuleParser;

/**
 * What is read, written and read again comes back, as far as a template gives each value one place
 * of its own. A template may not: two items in one place, a skeleton without an item's field, or
 * with a value there that is not of the item's type.
 */
namespace RoundTrip
{

/// Whether the entries of all scenes lie apart, each of their items in a place of its own, and
/// what the skeleton has there is of the items' types.
bool isOwed(const RuleParser& parser, const kql::Json::Value& skeleton);

/// Throws Fault unless the entries, and what they had of values and figures, are in @p again, too.
/// Both have read with one template, for which isOwed() holds.
void requireSame(const RuleParser& before, const RuleParser& again,
                 const kql::Json::Value& skeleton);

} // namespace RoundTrip
