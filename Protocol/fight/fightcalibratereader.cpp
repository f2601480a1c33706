#include "Protocol/fight/fightcalibratereader.h"

#include "Protocol/entrylist.h"
#include "Protocol/entryname.h"
#include "Protocol/fight/fightcalibratedata.h"
#include "Protocol/fight/fightcalibratetemplate.h"
#include "Protocol/figurereader.h"
#include "Protocol/jsonpath.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "host/json/value.h"

#include <utility>

using kql::Json::Value;

namespace
{

constexpr int kCorners = 2;

const DrawItem* readArea(FightCalibrateData& data, const Value& json, const RuleDataInfo& entry)
{
    const RuleProtocolItem& region = *data.fightTemplate()->regionItem();
    const Value* found = region.path().readPath(json);
    if (!found || !found->isArray())
        return nullptr;
    return FigureReader(data).add(region, entry, PointConversion::toPoints(*found),
                                  region.caption());
}

/// The corner pairs in @p list: a list of pairs, or one plain pair of points.
QVector<QVector<QPoint>> cornerPairs(const Value& list)
{
    QVector<QVector<QPoint>> pairs;
    if (PointConversion::isPointList(list))
        return {PointConversion::toPoints(list)};
    for (int i = 0; list.isArray() && i < list.size(); ++i)
        pairs.append(PointConversion::toPoints(list[i]));
    return pairs;
}

void readRects(FightCalibrateData& data, const Value& json, const RuleDataInfo& entry,
               const DrawItem* area)
{
    const RuleProtocolItem& rect = *data.fightTemplate()->rectItem();
    const Value* found = rect.path().readPath(json);
    const auto pairs = found ? cornerPairs(*found) : QVector<QVector<QPoint>>();
    int number = 0;
    for (const QVector<QPoint>& corners : pairs) {
        if (corners.size() == kCorners)
            FigureReader(data).add(rect, entry, corners, EntryName::child(rect, ++number), area);
    }
}

} // namespace

void FightCalibrateReader::read(FightCalibrateData& data, const Value& document)
{
    const DataTemplate& dataTemplate = *data.getTemplate();
    const auto entries =
        EntryList::getJsonItemList(JsonPath(dataTemplate.parent()).readPath(document));
    for (int i = 0; i < static_cast<int>(entries.size()); ++i) {
        const Value* json = EntryList::object(entries, i);
        if (!json)
            continue;
        auto entry = data.newDataInfo();
        entry->setSourceIndex(i);
        const DrawItem* area = readArea(data, *json, *entry);
        readRects(data, *json, *entry, area);
        data.addDataInfo(std::move(entry));
    }
}
