#include "Protocol/placecheck.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/detection/detectionprotocol.h"
#include "Protocol/entrywriter.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/savenotices.h"
#include "Protocol/sceneprotocol.h"
#include "Protocol/sceneprotocols.h"
#include "Protocol/valueconversion.h"

#include <QCoreApplication>
#include <algorithm>

using kql::Json::Value;

namespace
{

QString noPlace(const RuleProtocolItem& item, const JsonPath& path)
{
    return SaveNotices::tr("%1 is not saved: the template has no place \"%2\" for it.")
        .arg(SaveNotices::subject(item), path.text());
}

QString otherKind(const RuleProtocolItem& item)
{
    return SaveNotices::tr("%1 is not saved: the template has something else in its place \"%2\".")
        .arg(SaveNotices::subject(item), item.path().text());
}

/// Whether a value of @p type is written into @p target.
bool takes(const Value& target, ValueType type)
{
    switch (type) {
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

using Fault = PlaceCheck::PlaceFault;

Fault missing(const JsonPath& path)
{
    return {Fault::Kind::Missing, &path};
}

Fault faultOfControl(const RuleProtocolItem& item, const Value& prototype)
{
    if (item.valueType() == ValueType::None || item.valueType() == ValueType::Point)
        return {Fault::Kind::NoType};
    const Value* const field = item.path().find(prototype);
    if (!field)
        return item.path().isPlainName() ? Fault() : missing(item.path());
    const bool endsBefore = field->isArray() && item.index() >= 0 && item.index() >= field->size();
    if (endsBefore)
        return missing(item.path());
    const bool isTaken = takes(ValueConversion::element(*field, item), item.valueType());
    return isTaken ? Fault() : Fault{Fault::Kind::OtherKind};
}

Fault faultOfFigure(const RuleProtocolItem& item, const Value& prototype)
{
    if (!item.path().find(prototype))
        return missing(item.path());
    const bool lacksDirection = item.drawType() == BaseDrawType::Parallelogram &&
                                !ConfigMember::directionPath().find(prototype);
    return lacksDirection ? missing(ConfigMember::directionPath()) : Fault();
}

/// Calibrations make the places of their figures, where nothing else is. The lengths go with the
/// staffs, which are made anew, too.
Fault faultInCalibration(const RuleProtocolItem& item, const Value& prototype)
{
    Value made = prototype;
    const bool isWritten = !item.isFigure() || item.path().create(made);
    return isWritten ? Fault() : Fault{Fault::Kind::OtherKind};
}

QString sentence(const Fault& fault, const RuleProtocolItem& item)
{
    switch (fault.kind) {
    case Fault::Kind::Missing:
        return noPlace(item, *fault.path);
    case Fault::Kind::OtherKind:
        return otherKind(item);
    case Fault::Kind::NoType:
        return SaveNotices::tr("%1 is not saved: it has no type that a row can have.")
            .arg(SaveNotices::subject(item));
    case Fault::Kind::None:
        break;
    }
    return {};
}

/// Whether areas, those that are to come included, are written as bare lists of points.
bool arePoints(const RuleData& data, const Value& skeleton, const Value& configuration)
{
    if (data.getSceneType() != SceneType::Detection)
        return false;
    const JsonPath parent(data.getTemplate()->parent());
    const Value* const place = parent.find(configuration);
    if (DetectionProtocol::startsAsPoints(parent.find(skeleton), place))
        return true;
    const JsonEntries asRead = sceneProtocol(SceneType::Detection).entriesAt(place);
    return std::any_of(asRead.begin(), asRead.end(),
                       [](const Value* entry) { return entry->isArray(); });
}

/// Areas that are objects are saved with it, so its other notices hold.
void tellBesidePoints(RuleData& data, const RuleProtocolItem& item)
{
    const QString sentence =
        SaveNotices::tr("%1 is not saved of areas that are written as lists of points.")
            .arg(SaveNotices::subject(item));
    if (!data.saveNotices().sentences().contains(sentence))
        data.saveNotices().add(sentence);
}

void tellSection(RuleData& data, const TemplateSection& section, const Value& skeleton,
                 const Value& configuration)
{
    const EntryWriter writer(data, section.name);
    const Value prototype = writer.prototype(JsonPath(section.parent).firstEntryIn(skeleton));
    const bool leavesOut = arePoints(data, skeleton, configuration);
    for (const auto& item : data.getTemplate()->items()) {
        if (item->templateName() != section.name)
            continue;
        // Without a row nobody can set what is lost; what the document has there is told by itself.
        const bool isEdited = item->isFigure() || item->isControl();
        if (!isEdited)
            continue;
        const Fault fault = PlaceCheck::faultOf(data, *item, writer, prototype);
        if (fault.kind != Fault::Kind::None)
            data.saveNotices().addUnsaved(*item, sentence(fault, *item));
        else if (leavesOut && PlaceCheck::isBesidePoints(data, *item))
            tellBesidePoints(data, *item);
    }
}

} // namespace

PlaceCheck::PlaceFault PlaceCheck::faultOf(const RuleData& data, const RuleProtocolItem& item,
                                           const EntryWriter& writer, const Value& prototype)
{
    if (item.facade() == FacadeType::Lane)
        return {}; // its lines are members of their own, which are always made
    if (sceneProtocol(data.getSceneType()).isCalibration())
        return faultInCalibration(item, prototype);
    if (item.path().text().isEmpty())
        return missing(item.path());
    const Fault fault =
        item.isFigure() ? faultOfFigure(item, prototype) : faultOfControl(item, prototype);
    const bool isOneOfSeveral =
        fault.kind == Fault::Kind::None && !item.isFigure() && writer.lacksElement(item, prototype);
    return isOneOfSeveral ? Fault{Fault::Kind::OtherKind} : fault;
}

bool PlaceCheck::isBesidePoints(const RuleData& data, const RuleProtocolItem& item)
{
    const DataTemplate& dataTemplate = *data.getTemplate();
    const bool isDrawn = sceneProtocol(data.getSceneType()).entryFigureItem(dataTemplate) == &item;
    return (isDrawn || !item.isFigure()) && dataTemplate.figureItems().value(0) != &item;
}

void PlaceCheck::tell(RuleData& data, const Value& skeleton, const Value& configuration)
{
    for (const TemplateSection& section : data.getTemplate()->sections())
        tellSection(data, section, skeleton, configuration);
    const Value* const place = JsonPath(data.getTemplate()->parent()).find(skeleton);
    const bool isMadeAsOne =
        sceneProtocol(data.getSceneType()).whenMissing() == EntryTarget::WhenMissing::Object &&
        !(place && place->isArray());
    data.saveNotices().setTakesOneEntry((place && place->isObject()) || isMadeAsOne);
}
