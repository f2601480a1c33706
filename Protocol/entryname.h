#pragma once

#include "Protocol/checkfault.h"

#include <QString>
#include <optional>

class RuleData;
class RuleDataInfo;
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

/// The first rule that has the name of one before it, as a fault of its name's row; nothing where
/// all differ, and for other scenes.
std::optional<CheckFault> duplicate(const RuleData& data);

/// Gives entries without a name the one that picking them does, of rules alone.
void nameAll(const RuleData& data);
/// The same of one.
void nameEntry(const RuleData& data, RuleDataInfo& entry);

/// Whether the entries of @p data have names at all, as rules have.
bool areKept(const RuleData& data);

/// The name for a copy of an entry called @p wanted: where another entry has that name, or one kept
/// aside, with a number behind it, from 2 or on from the one that it ends in. It is cut before
/// the number to be no longer than kMaxLength.
QString ofCopy(const RuleData& data, const QString& wanted);

/// @p wanted, or where another entry has that name, or one kept aside, with the lowest free number
/// from 2 on behind it. It is cut as above.
QString numbered(const RuleData& data, const QString& wanted);
/// Whether numbered() may have made @p name of @p wanted.
bool isNumbered(const QString& name, const QString& wanted);

/// What faults call the row for it, which stands for no attribute.
constexpr char kRow[] = "ruleName";

/// Of a name, in characters, as an operator can type it.
constexpr int kMaxLength = 20;

/// Button text of the entry at @p position: its name, else the scene's word for an entry
/// followed by the 1-based position where several are allowed.
QString button(const RuleData& data, int position);
/// The same for an entry called @p name that is not there now.
QString button(const RuleData& data, const QString& name, int position);

/// Label of the @p number-th (from 1) figure of a child item: its caption, numbered where
/// several are allowed.
QString child(const RuleProtocolItem& item, int number);

} // namespace EntryName
