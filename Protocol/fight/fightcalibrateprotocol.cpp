#include "Protocol/fight/fightcalibrateprotocol.h"

#include "Protocol/entryname.h"
#include "Protocol/entrywriter.h"
#include "Protocol/fight/fightcalibratetemplate.h"
#include "Protocol/figurereader.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawitem.h"

#include <utility>

using kql::Json::Value;

namespace
{

constexpr int kCorners = 2;

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

void readRects(RuleData& data, const Value& json, const RuleDataInfo& entry, DrawItem* area)
{
    const RuleProtocolItem& rect = *data.getTemplate()->findItem(FightCalibrateTemplate::kRect);
    const Value* found = rect.path().readPath(json);
    const auto pairs = found ? cornerPairs(*found) : QVector<QVector<QPoint>>();
    int number = 0;
    for (const QVector<QPoint>& corners : pairs) {
        if (corners.size() == kCorners)
            FigureReader(data).add(rect, entry, corners, EntryName::child(rect, ++number), area);
    }
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

void writeRects(const RuleProtocolItem& rect, const EntryFigures& figures, int dataId, Value& json)
{
    const Value* skeleton = rect.path().find(std::as_const(json));
    const bool isPlainPair = skeleton && PointConversion::isPointList(*skeleton);
    const Value pairs = cornerPairs(figures.of(dataId, rect));
    if (pairs.empty() && !skeleton)
        return;
    if (Value* target = rect.path().create(json))
        *target = isPlainPair && pairs.size() == 1 ? pairs[0] : pairs;
}

} // namespace

void FightCalibrateProtocol::read(RuleData& data, const Value& document) const
{
    const RuleProtocolItem& region = *data.getTemplate()->findItem(FightCalibrateTemplate::kRegion);
    readEntries(data, document, [&](const Value& json, RuleDataInfo& entry) {
        DrawItem* area = FigureReader(data).read(region, entry, json, region.caption());
        readRects(data, json, entry, area);
    });
}

bool FightCalibrateProtocol::writeFightCalibrate(const RuleData& data,
                                                 const TemplateSection& section,
                                                 const WriteContext& context, Value& document) const
{
    const DataTemplate& dataTemplate = *data.getTemplate();
    const RuleProtocolItem& region = *dataTemplate.findItem(FightCalibrateTemplate::kRegion);
    const RuleProtocolItem& rect = *dataTemplate.findItem(FightCalibrateTemplate::kRect);
    auto entries = writeEntries(
        data, section, context, document,
        [&](const EntryWriter& writer, const RuleDataInfo& entry, const Value*, Value& json) {
            writer.writeMadePoints(region, entry, json);
            writeRects(rect, writer.figures(), entry.id(), json);
        });
    return put(std::move(entries), section, document);
}
