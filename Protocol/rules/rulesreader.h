#pragma once

class RuleData;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// Reads the scenes whose entries their template alone describes: rules and global.
namespace RulesReader
{

void read(RuleData& data, const kql::Json::Value& document);

} // namespace RulesReader
