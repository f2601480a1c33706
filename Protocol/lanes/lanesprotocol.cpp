#include "Protocol/lanes/lanesprotocol.h"

#include "Protocol/configmember.h"
#include "Protocol/entryreader.h"
#include "Protocol/entrywriter.h"
#include "Protocol/figurereader.h"
#include "Protocol/lanes/lanerules.h"
#include "Protocol/lanes/lanestemplate.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/rules/rulesprotocol.h"
#include "draw/drawgeometry.h"
#include "draw/drawitem.h"

#include <utility>

using kql::Json::Value;

namespace
{

constexpr int kLinePoints = 2;

DrawItem* readLines(RuleData& data, const Value& json, const RuleDataInfo& entry)
{
    const auto left = PointConversion::toPoints(json[ConfigMember::kLeftLine]);
    const auto right = PointConversion::toPoints(json[ConfigMember::kRightLine]);
    if (left.size() != kLinePoints || right.size() != kLinePoints)
        return nullptr;
    const RuleProtocolItem& item = *LanesTemplate::of(data)->laneItem();
    return FigureReader(data).add(item, entry, left + right, item.caption());
}

/// A rule without a lane number belongs to its lane all the same.
void readLaneNumber(const LanesTemplate& lanes, bool hasRule, RuleDataInfo& entry)
{
    const RuleProtocolItem* number = lanes.ruleLaneNumberItem();
    const bool hasNumber =
        hasRule && number && (entry.value(number->key()).isValid() || entry.asRead(number->key()));
    if (number && !hasNumber)
        entry.setValue(number->key(), entry.value(lanes.numberItem()->key()));
}

/// The points of a lane, left line first where the lines tell left from right: lines that run
/// against each other do not, and keep the order that they have.
QVector<QPoint> lanePoints(const DrawItem& lane)
{
    const QVector<QPoint> points = lane.getPoints();
    if (points.size() != 2 * kLinePoints)
        return {};
    const bool isLeftFirst = DrawGeometry::side(points[0], points[1], points[2]) >= 0;
    return isLeftFirst ? points : lane.value().points();
}

void writeLines(const RuleProtocolItem& item, const EntryFigures& figures, int dataId, Value& json)
{
    const DrawItem* lane = figures.first(dataId, item);
    const auto points = lane ? lanePoints(*lane) : QVector<QPoint>();
    if (points.isEmpty())
        return;
    json[ConfigMember::kLeftLine] = PointConversion::toJson(points.mid(0, kLinePoints));
    json[ConfigMember::kRightLine] = PointConversion::toJson(points.mid(kLinePoints));
}

bool isRules(const TemplateSection& section)
{
    return section.name == ConfigMember::kRuleSection;
}

} // namespace

void LanesProtocol::read(RuleData& data, const Value& document) const
{
    const LanesTemplate& lanes = *LanesTemplate::of(data);
    const LaneRules rules(lanes, document);
    const EntryReader laneReader(data, lanes.name());
    const EntryReader ruleReader(data, ConfigMember::kRuleSection);
    readEntries(data, document, [&](const Value& json, RuleDataInfo& entry) {
        DrawItem* lane = readLines(data, json, entry);
        laneReader.read(json, entry);
        const Value* rule = rules.ruleOf(entry.sourceIndex());
        if (rule)
            ruleReader.readRule(*rule, entry, lane);
        readLaneNumber(lanes, rule, entry);
    });
    QStringList names;
    for (const Value* rule : rules.unpaired())
        names.append((*rule)[ConfigMember::kName].asString());
    data.setNamesKeptAside(names);
}

bool LanesProtocol::write(const RuleData& data, const TemplateSection& section,
                          const WriteContext& context, Value& document) const
{
    return isRules(section) ? writeRules(data, section, context, document)
                            : writeLanes(data, section, context, document);
}

bool LanesProtocol::writeLanes(const RuleData& data, const TemplateSection& section,
                               const WriteContext& context, Value& document) const
{
    const RuleProtocolItem& item = *LanesTemplate::of(data)->laneItem();
    auto entries = writeEntries(data, section, context, document,
                                [&](const EntryWriter& writer, const RuleDataInfo& entry,
                                    const Value* asRead, Value& json) {
                                    writeLines(item, writer.figures(), entry.id(), json);
                                    writer.write(entry, asRead, json);
                                });
    return put(std::move(entries), section, document);
}

bool LanesProtocol::writeRules(const RuleData& data, const TemplateSection& section,
                               const WriteContext& context, Value& document) const
{
    auto entries = writeEntries(data, section, context, document);
    RulesProtocol::writeRuleMembers(data, context, entries);
    for (const Value* rule : keptAside(data, section, context.configuration))
        entries.push_back(*rule);
    return put(std::move(entries), section, document);
}

JsonEntries LanesProtocol::sources(const RuleData& data, const TemplateSection& section,
                                   const Value& document) const
{
    if (!isRules(section))
        return SceneProtocol::sources(data, section, document);
    const LaneRules rules(*LanesTemplate::of(data), document);
    JsonEntries sources;
    for (const auto& entry : data.getAllData())
        sources.push_back(rules.ruleOf(entry->sourceIndex()));
    return sources;
}

JsonEntries LanesProtocol::keptAside(const RuleData& data, const TemplateSection& section,
                                     const Value& document) const
{
    return isRules(section) ? LaneRules(*LanesTemplate::of(data), document).unpaired()
                            : JsonEntries();
}
