#include "Protocol/lanes/laneswriter.h"

#include "Protocol/configmember.h"
#include "Protocol/entrylist.h"
#include "Protocol/entrytarget.h"
#include "Protocol/entrywriter.h"
#include "Protocol/lanes/lanerules.h"
#include "Protocol/lanes/lanesdata.h"
#include "Protocol/lanes/lanestemplate.h"
#include "Protocol/missingplace.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/rules/ruleswriter.h"
#include "Protocol/writecontext.h"
#include "draw/basedraw.h"
#include "draw/drawgeometry.h"
#include "draw/drawitem.h"

#include <utility>

using kql::Json::Value;

namespace
{

constexpr int kLinePoints = 2;

/// The points of a lane, left line first where the lines tell left from right: lines that run
/// against each other do not, and keep the order that they have.
QVector<QPoint> lanePoints(const DrawItem& lane)
{
    QVector<QPoint> points = lane.getPoints();
    if (points.size() != 2 * kLinePoints)
        return {};
    if (DrawGeometry::side(points[0], points[1], points[2]) < 0) {
        points.clear();
        lane.figure()->BaseDraw::getPoints(points);
    }
    return points;
}

void writeLines(const LanesData& data, const EntryFigures& figures, int dataId, Value& json)
{
    const DrawItem* lane = figures.first(dataId, *data.lanesTemplate()->laneItem());
    const auto points = lane ? lanePoints(*lane) : QVector<QPoint>();
    if (points.isEmpty())
        return;
    json[ConfigMember::kLeftLine] = PointConversion::toJson(points.mid(0, kLinePoints));
    json[ConfigMember::kRightLine] = PointConversion::toJson(points.mid(kLinePoints));
}

bool writeLaneList(const LanesData& data, const WriteContext& context, Value& document)
{
    EntryTarget target(document, data.getTemplate()->parent());
    const EntryWriter writer(data, data.getTemplate()->name());
    const Value prototype = writer.prototype(target.prototype());
    const auto sources =
        EntryList::at(context.configuration, JsonPath(data.getTemplate()->parent()));
    std::vector<Value> entries;
    for (const auto& entry : data.getAllData()) {
        Value json = prototype;
        writeLines(data, writer.figures(), entry->id(), json);
        writer.write(*entry, EntryList::object(sources, entry->sourceIndex()), json);
        entries.push_back(std::move(json));
    }
    return target.put(std::move(entries));
}

bool writeRules(const LanesData& data, const WriteContext& context, Value& document)
{
    EntryTarget target(document, data.lanesTemplate()->rulesParent());
    const EntryWriter writer(data, ConfigMember::kRuleSection);
    const Value prototype = writer.prototype(target.prototype());
    const LaneRules rules(*data.lanesTemplate(), context.configuration);
    std::vector<Value> entries;
    for (int i = 0; i < data.getDataCount(); ++i) {
        const RuleDataInfo& entry = *data.getAllData()[static_cast<std::size_t>(i)];
        Value json = prototype;
        writer.write(entry, rules.ruleOf(entry.sourceIndex()), json);
        RulesWriter::writeRuleMembers(data, i, context, json);
        entries.push_back(std::move(json));
    }
    for (const Value* rule : rules.unpaired())
        entries.push_back(*rule);
    return target.put(std::move(entries));
}

} // namespace

bool LanesWriter::writeLanes(const LanesData& data, const WriteContext& context, Value& document,
                             MissingPlace& missing)
{
    if (!writeLaneList(data, context, document))
        return false;
    if (!data.lanesTemplate()->hasRuleItems())
        return true;
    missing = {data.lanesTemplate()->rulesParent(), ConfigMember::kRuleSection};
    return writeRules(data, context, document);
}
