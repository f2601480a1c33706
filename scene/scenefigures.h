#pragma once

#include "draw/figuretypes.h"

#include <QList>

class DrawItem;
class RuleData;
class RuleProtocolItem;

/// The figures of a scene's entries: counted and removed.
namespace SceneFigures
{

/// Whether the entry may have one more figure of @p item.
bool mayHaveMore(const RuleData& data, const RuleProtocolItem& item, int dataId);
/// The first of @p items that the entry has no figure for; null when it has them all.
RuleProtocolItem* firstMissing(const RuleData& data, const QList<RuleProtocolItem*>& items,
                               int dataId);

QList<int> idsOf(const RuleData& data, int dataId);
QList<int> childIdsOf(const DrawItem& item);
/// Ids whose figure is gone already are passed over.
void remove(const RuleData& data, const QList<int>& itemIds);

} // namespace SceneFigures
