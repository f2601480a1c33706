#pragma once

class RuleData;
class RuleDataInfo;

/// The numbers that lanes are told apart by.
namespace LaneNumbers
{

/// The smallest from the scene's least count on that no lane of @p data has; one above the largest
/// count when all have been given out.
int smallestFree(const RuleData& data);
/// Gives it to @p entry, and to its rule where it has one.
void giveFree(const RuleData& data, RuleDataInfo& entry);

} // namespace LaneNumbers
