#include "Protocol/entryclip.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/entryname.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/sceneprotocol.h"
#include "Protocol/sceneprotocols.h"
#include "Protocol/valueconversion.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"

#include <QSize>

#include <algorithm>

using kql::Json::Value;

namespace
{

Value limitOf(int limit)
{
    return limit < 0 ? Value() : Value(limit);
}

/// A document has 0 for an empty end of an interval, and so does not tell it from one that was set.
Value intervalOf(const QSize& interval)
{
    Value pair(kql::Json::ValueType::Array);
    pair.append(limitOf(interval.width()));
    pair.append(limitOf(interval.height()));
    return pair;
}

Value valueOf(const RuleProtocolItem& item, const RuleDataInfo& entry)
{
    if (const Value* const kept = entry.asRead(item.key()))
        return *kept;
    const QVariant value = entry.value(item.key());
    if (value.userType() == QMetaType::QSize)
        return intervalOf(value.toSize());
    RuleProtocolItem alone = item;
    alone.setIndex(-1);
    Value json;
    if (value.isValid())
        ValueConversion::toJson(value, alone, json);
    return json;
}

Value headOf(const RuleProtocolItem& item)
{
    Value json(kql::Json::ValueType::Object);
    json[EntryClip::kKey] = Value(item.key());
    json[EntryClip::kCaption] = Value(item.caption());
    return json;
}

Value attributesOf(const DataTemplate& dataTemplate, const RuleDataInfo& entry)
{
    Value attributes(kql::Json::ValueType::Array);
    for (const auto& item : dataTemplate.items()) {
        if (item->isFigure() || !entry.hasValue(item->key()))
            continue;
        Value attribute = headOf(*item);
        attribute[EntryClip::kValue] = valueOf(*item, entry);
        attributes.append(std::move(attribute));
    }
    return attributes;
}

Value figureOf(const RuleProtocolItem& item, const DrawItem& figure)
{
    Value json = headOf(item);
    json[EntryClip::kKind] = Value(static_cast<int>(figure.drawType()));
    json[EntryClip::kPoints] = PointConversion::toJson(figure.value().points());
    json[EntryClip::kPlace] = Value(figure.sourceIndex());
    if (figure.drawType() == BaseDrawType::Parallelogram)
        json[EntryClip::kDirections] = PointConversion::toJson(figure.value().directionPoints());
    return json;
}

Value figuresOf(const RuleData& data, const RuleDataInfo& entry)
{
    const DataTemplate& dataTemplate = *data.getTemplate();
    const QList<RuleProtocolItem*> items = dataTemplate.figureItems();
    Value figures(kql::Json::ValueType::Array);
    for (const DrawItem* figure : data.figures().of(entry.id())) {
        const auto item = std::find_if(items.begin(), items.end(), [&](const auto* candidate) {
            return dataTemplate.isFigureFor(*figure, *candidate);
        });
        if (item != items.end())
            figures.append(figureOf(**item, *figure));
    }
    return figures;
}

void writeMembers(const RuleData& data, const RuleDataInfo& entry, Value& json)
{
    const Value* const name = entry.nameAsRead();
    json[ConfigMember::kName] =
        name ? *name : Value(EntryName::written(data, data.indexOf(entry.id())));
    const Value* const enabled = entry.enabledAsRead();
    json[ConfigMember::kEnable] = enabled ? *enabled : Value(entry.isEnabled());
}

} // namespace

Value EntryClip::of(const RuleData& data, const RuleDataInfo& entry, const QString& document,
                    const Value* asRead)
{
    Value clip(kql::Json::ValueType::Object);
    clip[kScene] = Value(data.getTemplate()->name());
    clip[kDocument] = Value(document);
    clip[kPlace] = Value(entry.sourceIndex());
    if (asRead)
        clip[kSource] = sceneProtocol(data.getSceneType()).copiedPart(*asRead);
    if (EntryName::areKept(data))
        writeMembers(data, entry, clip);
    clip[kAttributes] = attributesOf(*data.getTemplate(), entry);
    clip[kFigures] = figuresOf(data, entry);
    return clip;
}

bool EntryClip::isFor(const RuleData& data, const Value& clip)
{
    return clip[kScene].isString() && clip[kScene].asString() == data.getTemplate()->name();
}
