#include "Protocol/lanes/lanesprotocol.h"

#include "Protocol/configmember.h"
#include "Protocol/entryreader.h"
#include "Protocol/entrywriter.h"
#include "Protocol/figurereader.h"
#include "Protocol/lanes/lanenumbers.h"
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

/// The lines of a lane, two points in 0..8192 each.
struct Lines {
    QVector<QPoint> left;
    QVector<QPoint> right;

    /// As @p json names them.
    static Lines in(const Value& json);
    /// As @p lane tells left from right: lines that run against each other do not, and keep the
    /// order that they have.
    static Lines of(const DrawItem& lane);
    /// False for a figure, or a list of a document, of another number of points.
    bool areWhole() const { return left.size() == kLinePoints && right.size() == kLinePoints; }
};

Lines Lines::in(const Value& json)
{
    return {PointConversion::toPoints(json[ConfigMember::kLeftLine]),
            PointConversion::toPoints(json[ConfigMember::kRightLine])};
}

Lines Lines::of(const DrawItem& lane)
{
    const QVector<QPoint> points = lane.getPoints();
    const bool isLeftFirst = points.size() == 2 * kLinePoints &&
                             DrawGeometry::side(points[0], points[1], points[2]) >= 0;
    const QVector<QPoint> ordered = isLeftFirst ? points : lane.value().points();
    return {ordered.mid(0, kLinePoints), ordered.mid(kLinePoints)};
}

DrawItem* readLines(RuleData& data, const Value& json, const RuleDataInfo& entry)
{
    const Lines lines = Lines::in(json);
    const RuleProtocolItem& item = *LanesTemplate::of(data)->laneItem();
    return lines.areWhole()
               ? FigureReader(data).add(item, entry, lines.left + lines.right, item.caption())
               : nullptr;
}

void writeLines(const RuleProtocolItem& item, const EntryFigures& figures, int dataId, Value& json)
{
    const DrawItem* lane = figures.first(dataId, item);
    const Lines lines = lane ? Lines::of(*lane) : Lines();
    if (!lines.areWhole())
        return;
    json[ConfigMember::kLeftLine] = PointConversion::toJson(lines.left);
    json[ConfigMember::kRightLine] = PointConversion::toJson(lines.right);
}

/// A lane and its rule have one number, which one row edits: where one of them has none, it is the
/// other's. Where that is no number it stays none, not the skeleton's, which another lane may have.
void shareNumber(const LanesTemplate& lanes, bool hasRule, RuleDataInfo& entry)
{
    const auto has = [&entry](const QString& key) {
        return entry.value(key).isValid() || entry.asRead(key);
    };
    const auto share = [&](const QString& from, const QString& to) {
        bool isNumber = false;
        const int number = entry.value(from).toInt(&isNumber);
        entry.setValue(to, isNumber ? QVariant(number) : QVariant());
        if (!isNumber && has(from))
            entry.keepAsRead(to, Value());
    };
    const QString& ofLane = LanesTemplate::kNumber;
    const QString& ofRule = LanesTemplate::kRuleLaneNumber;
    if (lanes.ruleLaneNumberItem() && !(hasRule && has(ofRule)))
        share(ofLane, ofRule);
    else if (lanes.ruleLaneNumberItem() && !has(ofLane))
        share(ofRule, ofLane);
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
        shareNumber(lanes, rule, entry);
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

void LanesProtocol::setApart(const RuleData& data, RuleDataInfo& entry) const
{
    SceneProtocol::setApart(data, entry);
    LaneNumbers::giveFree(data, entry);
}

JsonEntries LanesProtocol::keptAside(const RuleData& data, const TemplateSection& section,
                                     const Value& document) const
{
    return isRules(section) ? LaneRules(*LanesTemplate::of(data), document).unpaired()
                            : JsonEntries();
}
