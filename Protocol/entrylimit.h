#pragma once

class RuleData;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/**
 * What a template lets a configuration hold. Each entry takes up the template's attributes, checks
 * and prototype, so that two short documents can ask for more than a process can hold.
 */
namespace EntryLimit
{

// What one section of a template may have: an attribute's row takes some 60 kB, a choice 16.
constexpr int kMostAttributes = 1000;
constexpr int kMostChoices = 5000;

/// How many entries, or figures inside of them, the scene of @p data may have. @p skeleton is the
/// document that its entries are written into.
int mostEntries(const RuleData& data, const kql::Json::Value& skeleton);

/// How many entries @p document has for the scene of @p data.
int countEntries(const RuleData& data, const kql::Json::Value& document);

/// How many figures the entries of @p data have inside of their own, where the configuration
/// decides on their number; else 0.
int countInnerFigures(const RuleData& data);

} // namespace EntryLimit
