#pragma once

class RuleData;
struct WriteContext;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// Writes the scenes whose entries their template alone describes: rules and global. False when
/// there is no place for the entries.
namespace RulesWriter
{

bool writeRule(const RuleData& data, const WriteContext& context, kql::Json::Value& document);
bool writeGlobal(const RuleData& data, const WriteContext& context, kql::Json::Value& document);

/// Sets what every rule has besides its items. @p position counts from 0.
void writeRuleMembers(const RuleData& data, int position, const WriteContext& context,
                      kql::Json::Value& json);

} // namespace RulesWriter
