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
#include "host/api/limits.h"
#include "host/json/value.h"

using kql::Json::Value;

namespace
{

QVector<QPoint> directionPoints(const Value& json)
{
    const Value* points = ConfigMember::directionPath().readPath(json);
    return points ? PointConversion::toPoints(*points) : QVector<QPoint>();
}

void readName(const Value& name, RuleDataInfo& entry)
{
    const std::optional<QString> text = ValueConversion::toText(name);
    entry.setName(text.value_or(QString()));
    if (!text && !name.isNull())
        entry.keepNameAsRead(name);
}

void readEnabled(const Value& enabled, RuleDataInfo& entry)
{
    const bool isSwitch = enabled.isBool() || enabled.isNumeric();
    entry.setEnabled(!isSwitch || enabled.asBool());
    if (!isSwitch && !enabled.isNull())
        entry.keepEnabledAsRead(enabled);
}

} // namespace

qint64 EntryReader::textIn(const QVariant& value)
{
    if (value.userType() == QMetaType::QString)
        return value.toString().size();
    qint64 size = 0;
    if (value.userType() == QMetaType::QStringList) {
        for (const QString& text : value.toStringList())
            size += Limits::kValueText + text.size();
    }
    return size;
}

EntryReader::EntryReader(RuleData& data, const QString& section) : m_data(data), m_figures(data)
{
    for (const auto& item : data.getTemplate()->items()) {
        if (item->templateName() == section && !item->path().text().isEmpty())
            m_items.push_back(item.get());
    }
}

void EntryReader::read(const Value& json, RuleDataInfo& entry, DrawItem* parent) const
{
    for (const RuleProtocolItem* item : m_items)
        parseJsonToDataItem(*item, json, entry, parent);
}

void EntryReader::readRule(const Value& json, RuleDataInfo& entry, DrawItem* parent) const
{
    read(json, entry, parent);
    readMembers(json, entry);
}

void EntryReader::readMembers(const Value& json, RuleDataInfo& entry)
{
    readName(json[ConfigMember::kName], entry);
    readEnabled(json[ConfigMember::kEnable], entry);
}

void EntryReader::parseJsonToDataItem(const RuleProtocolItem& item, const Value& json,
                                      RuleDataInfo& entry, DrawItem* parent) const
{
    if (m_data.isOverdrawn())
        return; // all is dropped in the end
    const Value* found = item.path().readPath(json);
    if (!item.isFigure() && found)
        readValue(item, *found, entry);
    else if (!item.isFigure())
        entry.setValue(item.key(), QVariant());
    else if (found && found->isArray())
        addFigure(item, json, PointConversion::toPoints(*found), entry, parent);
}

void EntryReader::readValue(const RuleProtocolItem& item, const Value& found,
                            RuleDataInfo& entry) const
{
    entry.setValue(item.key(), parseValue(item, found));
    if (ValueConversion::isReadWhole(found, item))
        return;
    const Value& json = ValueConversion::element(found, item);
    if (m_data.takeText(json.styledLength()))
        entry.keepAsRead(item.key(), json);
}

QVariant EntryReader::parseValue(const RuleProtocolItem& item, const Value& found) const
{
    // Styled text may be a hundred times as long as what it is made of.
    const qint64 styled = ValueConversion::styledLength(found, item);
    if (!m_data.takeText(Limits::kValueText + styled))
        return {};
    QVariant value = ValueConversion::parseJsonToValue(found, item);
    if (styled == 0 && !m_data.takeText(textIn(value)))
        return {};
    if (value.userType() == QMetaType::QString && !item.enumeration().isEmpty())
        return *m_choices.insert(value.toString()).first;
    return value;
}

void EntryReader::addFigure(const RuleProtocolItem& item, const Value& json,
                            const QVector<QPoint>& points, const RuleDataInfo& entry,
                            DrawItem* parent) const
{
    DrawItem* drawItem = m_figures.add(item, entry, points, item.caption(), parent);
    if (!drawItem || drawItem->drawType() != BaseDrawType::Parallelogram)
        return;
    const QVector<QPoint> direction = directionPoints(json);
    if (m_data.takeText(qint64{Limits::kValueText} * direction.size()))
        drawItem->figure()->setDirectionPoints(direction);
}
