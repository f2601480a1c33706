#pragma once

class RuleData;
class RuleProtocolItem;

/// The names of figures, which the canvas and messages show. Those that are read or drawn have
/// their attribute's caption at first.
namespace FigureLabels
{

/// Gives the first figure of @p item that the entry at @p position has the entry's name. Without an
/// item it does nothing.
void update(const RuleData& data, const RuleProtocolItem* item, int position);
/// The same for all entries: their names may count the ones before.
void update(const RuleData& data, const RuleProtocolItem* item);
/// Numbers the entry's figures of @p item, where several are allowed.
void number(const RuleData& data, int dataId, const RuleProtocolItem& item);

} // namespace FigureLabels
