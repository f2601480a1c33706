#include "Protocol/detection/detectionprotocol.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entryid.h"
#include "Protocol/entryreader.h"
#include "Protocol/entrywriter.h"
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

/// Whether one bare list of points stands in the place of the list of entries.
bool isBareList(const Value* place)
{
    return place && PointConversion::isPointList(*place);
}

JsonEntries areasAt(const Value* place)
{
    return isBareList(place) ? JsonEntries{place} : getJsonItemList(place);
}

void readPoints(RuleData& data, const Value& json, const RuleDataInfo& entry)
{
    const RuleProtocolItem& item = *data.getTemplate()->figureItems().first();
    FigureReader(data).add(item, entry, PointConversion::toPoints(json), item.caption());
}

Value writePoints(const RuleData& data, const EntryWriter& writer, const RuleDataInfo& entry)
{
    const auto figureItems = data.getTemplate()->figureItems();
    const DrawItem* figure =
        figureItems.isEmpty() ? nullptr : writer.figures().first(entry.id(), *figureItems.first());
    return PointConversion::toJson(figure ? figure->getPoints() : QVector<QPoint>());
}

} // namespace

JsonEntries DetectionProtocol::entriesAt(const Value* place) const
{
    return areasAt(place);
}

/// Where the skeleton has no area the configuration shows the shape.
bool DetectionProtocol::startsAsPoints(const Value* skeleton, const Value* configuration)
{
    const JsonEntries patterns = areasAt(skeleton);
    const JsonEntries listed = patterns.empty() ? areasAt(configuration) : patterns;
    return !listed.empty() && listed.front()->isArray();
}

RuleProtocolItem* DetectionProtocol::entryFigureItem(const DataTemplate& dataTemplate) const
{
    return dataTemplate.figureItem(BaseDrawType::Polygon);
}

std::unique_ptr<RuleDataInfo> DetectionProtocol::newEntry(const RuleData& data,
                                                          const Value& json) const
{
    const bool isPoints = json.isArray() && !data.getTemplate()->figureItems().isEmpty();
    if (!isPoints && !json.isObject())
        return nullptr;
    // Kept so that ids step by two, as devices expect.
    EntryId::next();
    return data.newDataInfo();
}

void DetectionProtocol::read(RuleData& data, const Value& document) const
{
    const EntryReader reader(data, data.getTemplate()->name());
    readEntries(data, document, [&](const Value& json, RuleDataInfo& entry) {
        if (json.isArray())
            readPoints(data, json, entry);
        else
            reader.read(json, entry);
    });
}

bool DetectionProtocol::writeDetection(const RuleData& data, const TemplateSection& section,
                                       const WriteContext& context, Value& document) const
{
    const JsonPath parent(section.parent);
    const Value* const skeleton = parent.find(std::as_const(document));
    const Value* const configuration = parent.find(context.configuration);
    const bool areNewPoints = startsAsPoints(skeleton, configuration);
    bool isBare = false;
    auto entries = writeEntries(data, section, context, document,
                                [&](const EntryWriter& writer, const RuleDataInfo& entry,
                                    const Value* asRead, Value& json) {
                                    const bool isPoints = asRead ? asRead->isArray() : areNewPoints;
                                    isBare =
                                        isPoints && isBareList(asRead ? configuration : skeleton);
                                    if (isPoints)
                                        json = writePoints(data, writer, entry);
                                    else
                                        writer.write(entry, asRead, json);
                                });
    if (entries.size() == 1 && isBare)
        return EntryTarget(document, section.parent).putAlone(std::move(entries.front()));
    return put(std::move(entries), section, document);
}
