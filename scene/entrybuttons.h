#pragma once

#include "draw/basedrawtype.h"

#include <QList>

class DrawItem;
class DrawItemButton;
class QString;
class RuleData;
class RuleItemWidgetTabel;
class RuleProtocolItem;

/// Fills the tables of figure buttons and names the figures behind them.
namespace EntryButtons
{

/// How the buttons of entries are made.
struct Options {
    QList<RuleProtocolItem*> figureItems; ///< what an entry starts with; ties button and figure
    bool enableCheckBoxes = false;
};

/// One button for each entry, with or without a figure; the selected entry's is current.
void fillEntries(RuleItemWidgetTabel& table, const RuleData& data, const Options& options);

/// Labels the first figures of the entry at @p position with its name. Returns the first of
/// them; null for an entry without figures.
DrawItem* labelFigures(const RuleData& data, int position,
                       const QList<RuleProtocolItem*>& figureItems);

/// One button for each figure of @p types that the entry has, labelling the figures.
void fillChildren(RuleItemWidgetTabel& table, const RuleData& data, int dataId,
                  const QList<BaseDrawType>& types);

/// A button for @p item, not yet laid out; null for no item.
DrawItemButton* addChild(RuleItemWidgetTabel& table, const QString& label, const DrawItem* item);

} // namespace EntryButtons
