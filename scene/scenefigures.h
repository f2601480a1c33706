#pragma once

#include "draw/basedrawtype.h"
#include "draw/drawitemforbidenareatype.h"

#include <QList>
#include <memory>

class DrawItem;
class RuleData;
class RuleDataInfo;
class RuleProtocolItem;

/// The figures of a scene's entries: made, counted, removed.
namespace SceneFigures
{

/// A new figure of @p item for @p entry, not yet on the canvas, labelled with the item's caption
/// and crossed in the direction that the entry says.
std::unique_ptr<DrawItem> make(const RuleData& data, const RuleProtocolItem& item,
                               const RuleDataInfo& entry, DrawItemForbidenAreaType forbidden);

/// Whether the entry may have one more figure of @p item.
bool hasRoom(const RuleData& data, const RuleProtocolItem& item, int dataId);
/// The first of @p items that the entry has no figure for; null when it has them all.
RuleProtocolItem* firstMissing(const RuleData& data, const QList<RuleProtocolItem*>& items,
                               int dataId);

QList<int> idsOf(const RuleData& data, int dataId);
QList<int> childIdsOf(const DrawItem& item);
/// Ids whose figure is gone already are passed over.
void remove(const RuleData& data, const QList<int>& itemIds);

} // namespace SceneFigures
