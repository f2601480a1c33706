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

/// How the buttons of entries are made.
struct Options {
    const RuleProtocolItem* figureItem = nullptr; ///< ties button and figure; null for none
    bool enableCheckBoxes = false;
};

/// One button for each entry, with or without a figure; the selected entry's is current.
void fillEntries(RuleItemWidgetTabel& table, const RuleData& data, const Options& options);

/// One button for each figure of @p items that the entry has.
void fillChildren(RuleItemWidgetTabel& table, const RuleData& data, int dataId,
                  const QList<RuleProtocolItem*>& items);

/// A button for @p item, not yet laid out; null for no item.
DrawItemButton* addChild(RuleItemWidgetTabel& table, const QString& label, const DrawItem* item);

} // namespace EntryButtons
