#include "scene/scenefigures.h"

#include "Protocol/datatemplate.h"
#include "Protocol/figuremaker.h"
#include "Protocol/linedirections.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"

#include <algorithm>

std::unique_ptr<DrawItem> SceneFigures::make(const RuleData& data, const RuleProtocolItem& item,
                                             const RuleDataInfo& entry,
                                             DrawItemForbidenAreaType forbidden)
{
    auto figure = FigureMaker::make(data, item, entry.id(), forbidden);
    if (!figure)
        return nullptr;
    figure->setLabel(item.caption());
    LineDirections::giveTo(*figure, entry);
    return figure;
}

bool SceneFigures::hasRoom(const RuleData& data, const RuleProtocolItem& item, int dataId)
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
