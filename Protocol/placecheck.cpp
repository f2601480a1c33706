#include "Protocol/placecheck.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/entrywriter.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/savenotices.h"
#include "Protocol/sceneprotocol.h"
#include "Protocol/sceneprotocols.h"
#include "Protocol/valueconversion.h"

#include <QCoreApplication>

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

QString whyControlIsUnsaved(const RuleProtocolItem& item, const Value& prototype)
{
    if (item.valueType() == ValueType::None || item.valueType() == ValueType::Point)
        return SaveNotices::tr("%1 is not saved: it has no type that a row can have.")
            .arg(SaveNotices::subject(item));
    const Value* const field = item.path().find(prototype);
    if (!field)
        return item.path().isPlainName() ? QString() : noPlace(item, item.path());
    const bool endsBefore = field->isArray() && item.index() >= 0 && item.index() >= field->size();
    if (endsBefore)
        return noPlace(item, item.path());
    return takes(ValueConversion::element(*field, item), item.valueType()) ? QString()
                                                                           : otherKind(item);
}

QString whyFigureIsUnsaved(const RuleProtocolItem& item, const Value& prototype)
{
    if (!item.path().find(prototype))
        return noPlace(item, item.path());
    const bool lacksDirection = item.drawType() == BaseDrawType::Parallelogram &&
                                !ConfigMember::directionPath().find(prototype);
    return lacksDirection ? noPlace(item, ConfigMember::directionPath()) : QString();
}

QString whyUnsaved(const RuleProtocolItem& item, bool isBuiltIn, const Value& prototype)
{
    // Without a row nobody can set what is lost; what the document has there is told by itself.
    const bool isEdited = item.isFigure() || item.isControl();
    if (!isEdited || item.facade() == FacadeType::Lane)
        return {};
    if (item.path().text().isEmpty())
        return noPlace(item, item.path());
    if (isBuiltIn) {
        Value made = prototype; // calibrations make their places, where nothing else is
        return item.path().create(made) ? QString() : otherKind(item);
    }
    return item.isFigure() ? whyFigureIsUnsaved(item, prototype)
                           : whyControlIsUnsaved(item, prototype);
}

void tellSection(RuleData& data, const TemplateSection& section, const Value& skeleton)
{
    const EntryWriter writer(data, section.name);
    const Value prototype = writer.prototype(JsonPath(section.parent).firstEntryIn(skeleton));
    const bool isBuiltIn = sceneProtocol(data.getSceneType()).isCalibration();
    for (const auto& item : data.getTemplate()->items()) {
        if (item->templateName() != section.name)
            continue;
        QString why = whyUnsaved(*item, isBuiltIn, prototype);
        if (why.isEmpty() && item->isControl() && writer.lacksElement(*item, prototype))
            why = otherKind(*item);
        if (!why.isEmpty())
            data.saveNotices().addUnsaved(*item, why);
    }
}

} // namespace

void PlaceCheck::tell(RuleData& data, const Value& skeleton)
{
    for (const TemplateSection& section : data.getTemplate()->sections())
        tellSection(data, section, skeleton);
    const Value* const place = JsonPath(data.getTemplate()->parent()).find(skeleton);
    const bool isMadeAsOne =
        sceneProtocol(data.getSceneType()).whenMissing() == EntryTarget::WhenMissing::Object &&
        !(place && place->isArray());
    data.saveNotices().setTakesOneEntry((place && place->isObject()) || isMadeAsOne);
}
