#include "scene/scenefigures.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"

#include <algorithm>

bool SceneFigures::mayHaveMore(const RuleData& data, const RuleProtocolItem& item, int dataId)
{
    const CountRange range = item.countRange();
    const bool anyNumber = range == CountRange{0, 0};
    return anyNumber || data.figuresOf(dataId, item).size() < range.max;
}

RuleProtocolItem* SceneFigures::firstMissing(const RuleData& data,
                                             const QList<RuleProtocolItem*>& items, int dataId)
{
    const auto found = std::find_if(items.begin(), items.end(), [&](const RuleProtocolItem* item) {
        return item && data.figuresOf(dataId, *item).isEmpty();
    });
    return found == items.end() ? nullptr : *found;
}

QList<int> SceneFigures::idsOf(const RuleData& data, int dataId)
{
    QList<int> ids;
    const QList<DrawItem*> items = data.getDrawScene()->getItemListByDataId(dataId);
    for (const DrawItem* item : items)
        ids.append(item->itemId());
    return ids;
}

QList<int> SceneFigures::childIdsOf(const DrawItem& item)
{
    QList<int> ids;
    for (const auto& child : item.children())
        ids.append(child->itemId());
    return ids;
}

void SceneFigures::remove(const RuleData& data, const QList<int>& itemIds)
{
    for (const int id : itemIds)
        data.getDrawScene()->removeItem(id);
}
