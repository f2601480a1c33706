#pragma once

#include <QSet>

class DataTemplate;
class RuleDataInfo;
class RuleProtocolItem;
class QString;

/// Works out which attributes of an entry apply, from the entry's own values.
namespace Validity
{

/// Flags every conditional item of @p dataTemplate in @p entry.
void update(const DataTemplate& dataTemplate, RuleDataInfo& entry);

/// Whether a condition of @p item names @p key.
bool dependsOn(const RuleProtocolItem& item, const QString& key);

/// Flags the items whose condition names @p changedKey.
void updateDependents(const DataTemplate& dataTemplate, RuleDataInfo& entry,
                      const QString& changedKey);

/// The items whose rows are not to be shown for @p entry: those whose condition is not met, and
/// what they control, down the chain.
QSet<const RuleProtocolItem*> hiddenItems(const DataTemplate& dataTemplate,
                                          const RuleDataInfo& entry);

} // namespace Validity
