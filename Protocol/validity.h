#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <QVector>

class DataTemplate;
class RuleDataInfo;
class RuleProtocolItem;

/// Works out which attributes of an entry apply, from the entry's own values.
namespace Validity
{

/// Flags every conditional item of @p dataTemplate in @p entry.
void update(const DataTemplate& dataTemplate, RuleDataInfo& entry);

/// Flags those items of @p dataTemplate in @p entry.
void update(const DataTemplate& dataTemplate, RuleDataInfo& entry,
            const QVector<const RuleProtocolItem*>& items);

/// By key, the items with a condition that names it, in the template's order.
using Dependents = QMap<QString, QVector<const RuleProtocolItem*>>;
Dependents dependents(const DataTemplate& dataTemplate);

/// The items that do not apply to @p entry: those whose condition is not met, and what they
/// control, down the chain. Items that control each other are not among them for that alone. Rows,
/// checks and the order of writing all go by this.
QSet<const RuleProtocolItem*> hiddenItems(const DataTemplate& dataTemplate,
                                          const RuleDataInfo& entry);

} // namespace Validity
