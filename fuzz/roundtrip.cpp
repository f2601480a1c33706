#include "fuzz/roundtrip.h"

#include "fuzz/fault.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/entryname.h"
#include "Protocol/entrytarget.h"
#include "Protocol/entrywriter.h"
#include "Protocol/lanes/lanestemplate.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valueconversion.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "host/json/reader.h"
#include "host/json/value.h"

#include <QSet>
#include <QSize>
#include <algorithm>

using Fuzz::require;
using kql::Json::Value;

namespace
{

/// One list of entries: a scene has one, lanes with rules have two.
struct Section {
    const RuleData& data;
    QString name;
    QString parent;
};

std::vector<Section> sections(const RuleParser& parser)
{
    std::vector<Section> all;
    for (const auto& data : parser.getAllData()) {
        for (const TemplateSection& section : data->getTemplate()->sections())
            all.push_back({*data, section.name, section.parent});
    }
    return all;
}

bool isBuiltIn(const RuleData& data)
{
    return data.getSceneType() == SceneType::CalibrateArea ||
           data.getSceneType() == SceneType::FightCalibrate;
}

std::vector<const RuleProtocolItem*> itemsOf(const Section& section)
{
    std::vector<const RuleProtocolItem*> items;
    for (const auto& item : section.data.getTemplate()->items()) {
        if (item->templateName() == section.name && !item->path().text().isEmpty())
            items.push_back(item.get());
    }
    return items;
}

/// The entry that each one starts as.
Value prototype(const Section& section, const Value& skeleton)
{
    Value document = skeleton;
    const EntryTarget target(document, section.parent);
    return target.prototype() ? *target.prototype()
                              : EntryWriter(section.data, section.name).emptyEntry();
}

/// Where a path leads, whichever parts of it are arrays; ends in a point, so that no name is the
/// beginning of another one.
QString place(const QString& path, int index = -1)
{
    QString text = path;
    text.replace(QLatin1String("[]."), QLatin1String("."));
    if (text.endsWith(QLatin1String("[]")))
        text.chop(2);
    return index < 0 ? text + QLatin1Char('.') : text + QStringLiteral(".[%1].").arg(index);
}

bool areApart(QStringList places)
{
    std::sort(places.begin(), places.end());
    return std::adjacent_find(places.begin(), places.end(), [](const QString& a, const QString& b) {
               return b.startsWith(a);
           }) == places.end();
}

/// The places that entries of @p section fill, besides those of its items.
QStringList ownPlaces(const Section& section)
{
    QStringList places;
    if (section.name == ConfigMember::kRuleSection)
        places << QStringLiteral("Name.") << QStringLiteral("Enable.");
    else if (section.data.getSceneType() == SceneType::Lanes)
        places << QStringLiteral("LeftLine.") << QStringLiteral("RightLine.");
    return places;
}

/// The value that an item has in an entry; null for none.
const Value* found(const Value& entry, const RuleProtocolItem& item)
{
    return item.path().find(entry);
}

/// Where an item's value lies in @p entry: an element of what is a list there, or all of it.
QString placeOf(const RuleProtocolItem& item, const Value& entry)
{
    const Value* value = found(entry, item);
    const bool isList = !value || value->isNull() || value->isArray();
    return place(item.path().text(), isList && !item.isFigure() ? item.index() : -1);
}

bool areItemsApart(const Section& section, const Value& entry)
{
    QStringList places = ownPlaces(section);
    QSet<QString> keys;
    for (const RuleProtocolItem* item : itemsOf(section)) {
        places.append(placeOf(*item, entry));
        if (item->drawType() == BaseDrawType::Parallelogram)
            places.append(place(ConfigMember::directionPath().text()));
        keys.insert(item->key());
    }
    return areApart(places) && keys.size() == int(itemsOf(section).size());
}

/// Whether nothing else is in the way to the place of @p item.
bool canBeMade(Value entry, const RuleProtocolItem& item)
{
    return item.path().create(entry);
}

bool isOfType(const Value& entry, const RuleProtocolItem& item)
{
    const Value* value = found(entry, item);
    if (!value || (item.isFigure() && !value->isArray()))
        return canBeMade(entry, item);
    if (item.drawType() == BaseDrawType::Parallelogram) {
        const Value* course = ConfigMember::directionPath().find(entry);
        return value->empty() && (!course || (course->isArray() && course->empty()));
    }
    if (item.isFigure())
        return PointConversion::toJson(PointConversion::toPoints(*value)) == *value;
    Value written = *value;
    ValueConversion::toJson(ValueConversion::parseJsonToValue(*value, item), item, written, value);
    return written == *value;
}

/// Whether there is room for all entries: a list, an object for a single one, or nothing yet.
bool hasRoom(const Section& section, const Value& skeleton)
{
    const JsonPath path(section.parent);
    const Value* list = path.find(skeleton);
    const bool isList = list && list->isArray();
    const bool isGlobal = section.name == QLatin1String("global");
    const bool isSingle = !isList && (isGlobal || (list && list->isObject()));
    if (isSingle && section.data.getDataCount() != 1)
        return false;
    Value grown = skeleton;
    return list || (!section.parent.isEmpty() && path.create(grown));
}

/// Whether there is a place in @p entry that takes what @p item has for it.
bool hasPlace(const Value& entry, const RuleProtocolItem& item)
{
    const Value* value = found(entry, item);
    if (!value || item.isFigure())
        return value || (!item.isFigure() && item.path().isPlainName());
    const bool isElement = item.index() >= 0 && value->isArray();
    if (isElement && item.index() >= value->size())
        return false;
    const Value& target = isElement ? (*value)[item.index()] : *value;
    switch (item.valueType()) {
    case ValueType::Bool:
    case ValueType::Int:
    case ValueType::Float:
        return !target.isArray();
    case ValueType::ArrayInt:
        return target.isArray() || target.isNull();
    default:
        return true;
    }
}

/// Whether lanes and rules have the numbers by which they belong together, where that is asked.
bool areNumbered(const Section& section, const Value& prototypeEntry)
{
    const auto* lanes = LanesTemplate::of(section.data);
    if (!lanes || !lanes->hasRuleItems())
        return true;
    const bool isRule = section.name == ConfigMember::kRuleSection;
    const QString key = lanes->numberItem()->key();
    const auto& entries = section.data.getAllData();
    return hasPlace(prototypeEntry, isRule ? *lanes->ruleLaneNumberItem() : *lanes->numberItem()) &&
           std::all_of(entries.begin(), entries.end(),
                       [&](const auto& entry) { return entry->value(key).isValid(); });
}

bool isSectionOwed(const Section& section, const Value& skeleton)
{
    if (!hasRoom(section, skeleton))
        return false;
    const Value entry = prototype(section, skeleton);
    const auto items = itemsOf(section);
    // The staffs of an area are never those of the skeleton.
    const bool isArea = section.data.getSceneType() == SceneType::CalibrateArea;
    return (isBuiltIn(section.data) || areItemsApart(section, entry)) &&
           areNumbered(section, entry) &&
           std::all_of(items.begin(), items.end(), [&](const RuleProtocolItem* item) {
               const bool isStaff = isArea && item->drawType() != BaseDrawType::Polygon;
               return isStaff || isOfType(entry, *item);
           });
}

/// As it is written: a limit that is empty is 0 for devices, and a list of one text is that text.
QVariant written(const QVariant& value)
{
    if (value.type() == QVariant::Size)
        return value.toSize().expandedTo({0, 0});
    return value.type() == QVariant::String ? QVariant(value.toStringList()) : value;
}

/// Whether @p value is one that could be read for @p item; a default may be of another type.
bool isReadable(const QVariant& value, const RuleProtocolItem& item)
{
    Value object;
    switch (item.valueType()) {
    case ValueType::String:
        return value.type() == QVariant::String || value.type() == QVariant::StringList;
    case ValueType::Object:
        return kql::Json::Reader().parse(value.toString(), object);
    default:
        return value.isValid() && int(value.type()) == int(item.valueType());
    }
}

void requireValue(const RuleProtocolItem& item, const RuleDataInfo& before,
                  const RuleDataInfo& again)
{
    const QVariant value = before.value(item.key());
    const QVariant back = again.value(item.key());
    require(!isReadable(value, item) || written(back) == written(value),
            "the value " + item.key().toStdString() + " was " + value.toString().toStdString() +
                " and is " + back.toString().toStdString());
}

/// The first figure of an entry that is there for @p item; null for none.
const DrawItem* figureOf(const RuleData& data, const RuleDataInfo& entry,
                         const RuleProtocolItem& item)
{
    return data.figuresOf(entry.id(), item).value(0);
}

void requireFigure(const DrawItem* before, const DrawItem* again, const std::string& key,
                   bool hasCourse = false)
{
    if (!before)
        return;
    require(again, "the figure " + key + " is gone");
    require(again->drawType() == before->drawType() && again->getPoints() == before->getPoints() &&
                again->isFinished() == before->isFinished() &&
                bool(again->parent()) == bool(before->parent()),
            "the figure " + key + " is another one");
    const bool isDirected = hasCourse && before->drawType() == BaseDrawType::Parallelogram;
    require(!isDirected ||
                again->figure()->directionPoints() == before->figure()->directionPoints(),
            "the figure " + key + " leads elsewhere");
}

void requireEntry(const Section& before, const Section& again, int position, const Value& entry)
{
    const RuleDataInfo& was = *before.data.getAllData()[std::size_t(position)];
    const RuleDataInfo& is = *again.data.getAllData()[std::size_t(position)];
    // A name that is none is written as it was read.
    const QString name = was.nameAsRead() ? was.name() : EntryName::written(before.data, position);
    if (before.name == ConfigMember::kRuleSection)
        require(is.name() == name && is.isEnabled() == was.isEnabled(),
                "an entry is named otherwise");
    const bool hasCourse = ConfigMember::directionPath().find(entry);
    for (const RuleProtocolItem* item : itemsOf(before)) {
        if (!hasPlace(entry, *item))
            continue;
        if (item->isFigure())
            requireFigure(figureOf(before.data, was, *item), figureOf(again.data, is, *item),
                          item->key().toStdString(), hasCourse);
        else
            requireValue(*item, was, is);
    }
}

/// Scenes whose items are built in: a staff that is none takes its length along, so that only
/// the figures are owed.
void requireFigures(const RuleData& before, const RuleData& again)
{
    const auto figures = before.getDrawScene()->getItemList(BaseDrawType::None, 0);
    const auto others = again.getDrawScene()->getItemList(BaseDrawType::None, 0);
    require(others.size() >= figures.size(), "figures are gone");
    for (int i = 0; i < figures.size() && figures.size() == others.size(); ++i)
        requireFigure(figures[i], others[i], figures[i]->templateKey().toStdString());
}

void requireLane(const RuleData& before, const RuleData& again, int position)
{
    const auto* lanes = LanesTemplate::of(before);
    if (!lanes)
        return;
    const RuleProtocolItem& lane = *lanes->laneItem();
    const auto entry = std::size_t(position);
    requireFigure(figureOf(before, *before.getAllData()[entry], lane),
                  figureOf(again, *again.getAllData()[entry], lane), "lane");
}

} // namespace

bool RoundTrip::isOwed(const RuleParser& parser, const Value& skeleton)
{
    QStringList parents;
    bool all = skeleton.isObject();
    for (const Section& section : sections(parser)) {
        parents.append(place(section.parent));
        all = all && isSectionOwed(section, skeleton);
    }
    return all && areApart(parents);
}

void RoundTrip::requireSame(const RuleParser& before, const RuleParser& again,
                            const Value& skeleton)
{
    const auto were = sections(before);
    const auto are = sections(again);
    for (std::size_t i = 0; i < were.size(); ++i) {
        const int count = were[i].data.getDataCount();
        require(are[i].data.getDataCount() == count, "there is another number of entries");
        if (isBuiltIn(were[i].data)) {
            requireFigures(were[i].data, are[i].data);
            continue;
        }
        const Value entry = prototype(were[i], skeleton);
        for (int position = 0; position < count; ++position) {
            requireEntry(were[i], are[i], position, entry);
            requireLane(were[i].data, are[i].data, position);
        }
    }
}
