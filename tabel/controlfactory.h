#pragma once

class ControlTabel;
class QWidget;
class RuleProtocolItem;

/// The row that edits @p item, by its facade: bound, named after the item's key and shown in
/// @p parent. Null for no item and for facades that have no row.
ControlTabel* createControlTabel(RuleProtocolItem* item, QWidget* parent);
