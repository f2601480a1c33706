#pragma once

class QString;
class DrawItem;
class RuleData;
class RuleDataInfo;

/// The direction in which an entry's direction lines are crossed. The canvas shows it, so it is
/// given to them when an entry is read, when a line is made and when the direction changes.
namespace LineDirections
{

/// Key of the attribute that holds it.
QString key();
/// Gives @p figure the direction that the entry holds, if it holds one and the figure is a line.
void giveTo(DrawItem& figure, const RuleDataInfo& entry);
/// Gives it to all of the entry's lines.
void apply(const RuleData& data, const RuleDataInfo& entry);

} // namespace LineDirections
