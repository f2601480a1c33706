#pragma once

#include <QString>

class RuleProtocolItem;
struct Change;
namespace kql::Json
{
class Value;
}

/// Says changes in the operator's words: captions, the texts of choices, units.
namespace ChangeText
{

/// @p value as the row of @p item shows it.
QString shown(const kql::Json::Value& value, const RuleProtocolItem& item);

/// One sentence about @p change; @p item is the attribute or figure that it is about, null for
/// those of whole entries.
QString of(const Change& change, const RuleProtocolItem* item);

} // namespace ChangeText
