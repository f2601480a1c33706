#pragma once

#include "draw/figuretypes.h"

#include <QList>

class DrawItem;
class DrawItemButton;
class QString;
class RuleData;
class RuleItemWidgetTabel;
class RuleProtocolItem;

/// Fills the tables of figure buttons.
namespace EntryButtons
{

/// One button for each entry, with or without a figure; the selected entry's is current.
/// @p figureItem ties button and figure; null for none.
void fillEntries(RuleItemWidgetTabel& table, const RuleData& data,
                 const RuleProtocolItem* figureItem, bool hasCheckBoxes);

/// One button for each figure of @p items that the entry has.
void fillChildren(RuleItemWidgetTabel& table, const RuleData& data, int dataId,
                  const QList<RuleProtocolItem*>& items);

/// A button for @p item, not yet laid out; null for no item.
DrawItemButton* addChild(RuleItemWidgetTabel& table, const QString& label, const DrawItem* item);

} // namespace EntryButtons
