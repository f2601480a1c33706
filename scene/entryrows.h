#pragma once

class ControlItemWidgetTabel;
class ControlTabel;
class DataTemplate;
class QString;
class RuleData;
class RuleDataInfo;
class RuleProtocolItem;

/// Moves values between an entry and the attribute rows.
namespace EntryRows
{

/// Shows @p entry of @p data in the rows; without one they show nothing. Announces and changes
/// nothing. Rows without an attribute are left to whoever made them.
void load(ControlItemWidgetTabel& rows, const RuleData& data, const RuleDataInfo* entry);

/// Shows the rows that apply to @p entry and hides the others.
void showApplicable(ControlItemWidgetTabel& rows, const DataTemplate& dataTemplate,
                    const RuleDataInfo& entry);

/// Stores the row of @p key, unless it still shows what it was loaded with.
void store(const ControlItemWidgetTabel& rows, const QString& key, RuleDataInfo& entry);

/// Works out anew which attributes depend on @p changedKey apply, and stores the rows of those
/// that do. One that has no value yet starts with its default, and so on down the chain.
void updateDependents(const ControlItemWidgetTabel& rows, const DataTemplate& dataTemplate,
                      const QString& changedKey, RuleDataInfo& entry);

/// Unties all rows from their attributes, for templates that go before the rows do.
void release(const ControlItemWidgetTabel& rows, const DataTemplate* dataTemplate);

} // namespace EntryRows
