#pragma once

#include <QString>

class RuleData;
class RuleProtocolItem;

/// Texts that name entries and their figures, in one place for buttons, labels and documents.
namespace EntryName
{

/// The name that a rule at @p position (from 0) is written with.
QString written(const RuleData& data, int position);

/// Whether the entry's name is a text. What else stood in its place goes back as it was read.
bool isText(const RuleData& data, int position);

/// The name for an entry that is put behind the others: @p wanted, or where one of them
/// or of those kept aside has it, "Rule" and the lowest free number, counted up from the entry's
/// place.
QString unused(const RuleData& data, const QString& wanted);

/// Button text of the entry at @p position: its name, else the scene's word for an entry
/// followed by the 1-based position where several are allowed.
QString button(const RuleData& data, int position);

/// Label of the @p number-th (from 1) figure of a child item: its caption, numbered where
/// several are allowed.
QString child(const RuleProtocolItem& item, int number);

} // namespace EntryName
