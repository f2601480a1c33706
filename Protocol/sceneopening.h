#pragma once

class RuleData;

/// What the window makes of a scene by itself when it shows it after a load, for all who want it as
/// an operator has it then.
namespace SceneOpening
{

/// Gives the scene the word for its entries, and the global one the entry that it always has.
void complete(RuleData& data);
/// Turns the lines as their entries say.
void turnLines(const RuleData& data);
/// Makes the first entry current; returns its id, 0 for none.
int showFirst(RuleData& data);

} // namespace SceneOpening
