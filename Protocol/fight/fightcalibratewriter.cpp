#include "Protocol/fight/fightcalibratewriter.h"

#include "Protocol/entryfigures.h"
#include "Protocol/entrytarget.h"
#include "Protocol/entrywriter.h"
#include "Protocol/fight/fightcalibratedata.h"
#include "Protocol/fight/fightcalibratetemplate.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawitem.h"

#include <utility>

using kql::Json::Value;

namespace
{

constexpr int kCorners = 2;

void writeArea(const FightCalibrateData& data, const EntryFigures& figures, int dataId, Value& json)
{
    const RuleProtocolItem& region = *data.fightTemplate()->regionItem();
    const DrawItem* area = figures.first(dataId, region);
    Value* target = area ? region.path().create(json) : nullptr;
    if (target)
        *target = PointConversion::toJson(area->getPoints());
}

Value cornerPairs(const EntryFigures::Figures& rects)
{
    Value pairs(kql::Json::ValueType::Array);
    for (const DrawItem* rect : rects) {
        const auto corners = rect->getPoints();
        if (corners.size() >= kCorners)
            pairs.append(PointConversion::toJson(corners.mid(0, kCorners)));
    }
    return pairs;
}

void writeRects(const FightCalibrateData& data, const EntryFigures& figures, int dataId,
                Value& json)
{
    const RuleProtocolItem& rect = *data.fightTemplate()->rectItem();
    const Value* skeleton = rect.path().probe(std::as_const(json));
    const bool isPlainPair = skeleton && PointConversion::isPointList(*skeleton);
    const Value pairs = cornerPairs(figures.of(dataId, rect));
    if (pairs.empty() && !skeleton)
        return;
    if (Value* target = rect.path().create(json))
        *target = isPlainPair && pairs.size() == 1 ? pairs[0] : pairs;
}

} // namespace

bool FightCalibrateWriter::writeFightCalibrate(const FightCalibrateData& data, Value& document)
{
    EntryTarget target(document, data.getTemplate()->parent());
    const EntryWriter writer(data, data.getTemplate()->name());
    const Value prototype = writer.prototype(target.prototype());
    std::vector<Value> entries;
    for (const auto& entry : data.getAllData()) {
        Value json = prototype;
        writeArea(data, writer.figures(), entry->id(), json);
        writeRects(data, writer.figures(), entry->id(), json);
        entries.push_back(std::move(json));
    }
    return target.put(std::move(entries));
}
