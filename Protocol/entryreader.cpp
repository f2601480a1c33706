#include "Protocol/entryreader.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valueconversion.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "host/value.h"

using kql::Json::Value;

namespace
{

QVector<QPoint> directionPoints(const Value& json)
{
    const Value* points = ConfigMember::directionPath().readPath(json);
    return points ? PointConversion::toPoints(*points) : QVector<QPoint>();
}

} // namespace

EntryReader::EntryReader(RuleData& data, const QString& section) : m_figures(data)
{
    for (const auto& item : data.getTemplate()->items()) {
        if (item->templateName() == section && !item->path().text().isEmpty())
            m_items.push_back(item.get());
    }
}

void EntryReader::read(const Value& json, RuleDataInfo& entry, const DrawItem* parent) const
{
    for (const RuleProtocolItem* item : m_items)
        parseJsonToDataItem(*item, json, entry, parent);
}

void EntryReader::readRule(const Value& json, RuleDataInfo& entry, const DrawItem* parent) const
{
    read(json, entry, parent);
    entry.setName(json[ConfigMember::kName].asString());
    if (const Value* enabled = json.find(ConfigMember::kEnable))
        entry.setEnabled(enabled->asBool());
}

void EntryReader::parseJsonToDataItem(const RuleProtocolItem& item, const Value& json,
                                      RuleDataInfo& entry, const DrawItem* parent) const
{
    const Value* found = item.path().readPath(json);
    if (!item.isFigure())
        entry.setValue(item.key(),
                       found ? ValueConversion::parseJsonToValue(*found, item) : QVariant());
    else if (found && found->isArray())
        addFigure(item, json, PointConversion::toPoints(*found), entry, parent);
}

void EntryReader::addFigure(const RuleProtocolItem& item, const Value& json,
                            const QVector<QPoint>& points, const RuleDataInfo& entry,
                            const DrawItem* parent) const
{
    DrawItem* drawItem = m_figures.add(item, entry, points, item.caption(), parent);
    if (drawItem && drawItem->drawType() == BaseDrawType::Parallelogram)
        drawItem->figure()->setDirectionPoints(directionPoints(json));
}
