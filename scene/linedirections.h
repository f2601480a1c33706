#pragma once

class QString;
class RuleData;
class RuleDataInfo;

/// The direction in which an entry's direction lines are crossed.
namespace LineDirections
{

/// Key of the attribute that holds it.
QString key();
/// Gives the entry's lines the direction that the entry holds, if it holds one.
void apply(const RuleData& data, const RuleDataInfo& entry);

} // namespace LineDirections
