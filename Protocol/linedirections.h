#pragma once

class QString;
class DrawItem;
class RuleData;
class RuleDataInfo;

/// The direction in which an entry's direction lines are crossed. The canvas shows it, so panels
/// give it to them when they are bound, when a line is made and when the direction changes: while
/// an entry is read it may still have its default, which the document does not say.
namespace LineDirections
{

/// Key of the attribute that holds it.
QString key();
/// Gives @p figure the direction that the entry holds, if it holds one and the figure is a line.
void giveTo(DrawItem& figure, const RuleDataInfo& entry);
/// Gives it to all of the entry's lines.
void apply(const RuleData& data, const RuleDataInfo& entry);

} // namespace LineDirections
