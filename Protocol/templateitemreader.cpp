#include "Protocol/templateitemreader.h"

#include "Protocol/ruleprotocolitem.h"
#include "Protocol/spelling.h"
#include "host/json/value.h"

using kql::Json::Value;

namespace
{

constexpr CountRange kNoPointLimit{-1, -1};

void parseProtocol(RuleProtocolItem& item, const Value& protocol)
{
    if (const Value* const name = protocol.find("name"))
        item.setPath(name->asString());
    if (const Value* const type = protocol.find("type"))
        item.setValueType(Spelling::toValueType(type->asString()));
    if (const Value* const index = protocol.find("index"))
        item.setIndex(index->asInt());
}

/// Values of type "object" are held as styled text.
QString textOfValue(const Value& value)
{
    return value.isObject() ? value.toStyledText() : value.asString();
}

/// What a condition compares with is never written, so it need not be long.
QString textOfCondition(const Value& value)
{
    return value.isObject() ? value.toCompactText() : value.asString();
}

void parseValid(RuleProtocolItem& item, const Value& valid)
{
    ValidCondition condition;
    condition.controlKey = valid["controlKey"].asString();
    if (const Value* const single = valid.find("enumValue")) {
        condition.values.append(textOfCondition(*single));
    } else {
        const Value& several = valid["enumValueArray"];
        for (int i = 0; several.isArray() && i < several.size(); ++i)
            condition.values.append(textOfCondition(several[i]));
    }
    item.addValidity(condition);
}

QVariant numberBoxDefault(ValueType type, const Value& value)
{
    if (value.isNull())
        return {};
    switch (type) {
    case ValueType::Int:
        return value.asInt();
    case ValueType::Float:
        return value.asDouble();
    case ValueType::String:
        return value.asString();
    case ValueType::Object:
        return value.isObject() ? QVariant(textOfValue(value)) : QVariant();
    default:
        return {};
    }
}

void parseNumberBox(RuleProtocolItem& item, const Value& details)
{
    if (const auto range = TemplateItemReader::parseCountRange(details["range"]))
        item.setRange(range->min, range->max);
    item.setDefaultValue(numberBoxDefault(item.valueType(), details["default"]));
    item.setUnits(details["units"].asString());
}

EnumOption parseOption(const Value& choice)
{
    EnumOption option;
    option.value = textOfValue(choice["value"]);
    option.text = choice["name"].asString();
    option.description = choice["describe"].asString();
    option.isAll = choice["isAll"].asBool();
    return option;
}

void parseEnumeration(RuleProtocolItem& item, const Value& details)
{
    QList<EnumOption> options;
    bool hasAll = details["isAll"].asBool();
    const Value& choices = details["enumeration"];
    for (int i = 0; choices.isArray() && i < choices.size(); ++i) {
        options.append(parseOption(choices[i]));
        hasAll = hasAll || options.last().isAll;
    }
    item.setEnumeration(options);
    item.setHasAllChoice(hasAll);
}

void parseCheckBoxes(RuleProtocolItem& item, const Value& details)
{
    parseEnumeration(item, details);
    if (const Value& value = details["default"]; value.isString())
        item.setDefaultValue(QStringList{value.asString()});
}

void parseRadioButtons(RuleProtocolItem& item, const Value& details)
{
    parseEnumeration(item, details);
    const Value& value = details["default"];
    if (value.isString() || (value.isObject() && item.valueType() == ValueType::Object))
        item.setDefaultValue(textOfValue(value));
}

/// The range of a figure counts its points; each entry has one such figure.
void parseFigure(RuleProtocolItem& item, const Value& details)
{
    item.setCountRange({1, 1});
    const Value* const range = details.find("range");
    if (!range)
        return;
    if (range->isNull())
        item.setPointCount(kNoPointLimit);
    else if (const auto points = TemplateItemReader::parseCountRange(*range))
        item.setPointCount(*points);
}

} // namespace

int TemplateItemReader::countDependencies(const Value& controls)
{
    int count = 0;
    while (count < controls[count]["depend"].size())
        ++count;
    return count;
}

/// The j-th key is taken from the j-th control, not from the control that the list is for:
/// devices' templates are written against this order.
QStringList TemplateItemReader::parseDependencies(const Value& controls)
{
    QStringList keys;
    for (int j = 0, count = countDependencies(controls); j < count; ++j)
        keys.append(controls[j]["depend"][j]["key"].asString());
    return keys;
}

std::unique_ptr<RuleProtocolItem> TemplateItemReader::parseControl(const Value& control)
{
    auto item = std::make_unique<RuleProtocolItem>();
    parseProtocol(*item, control["protocol"]);
    item->setKey(control["key"].asString());
    if (const Value* const valid = control.find("valid"))
        parseValid(*item, *valid);
    return item;
}

void TemplateItemReader::parseRuleProtocolItem(RuleProtocolItem& item, const Value& details)
{
    if (details.isNull())
        return;
    item.setCaption(details["describe"].asString());
    item.setFacade(Spelling::toFacadeType(details["facade"].asString()));
    if (item.isFigure()) {
        parseFigure(item, details);
        return;
    }
    switch (item.facade()) {
    case FacadeType::InputBoxNumber:
        parseNumberBox(item, details);
        break;
    case FacadeType::CheckBox:
        parseCheckBoxes(item, details);
        break;
    case FacadeType::RadioButton:
        parseRadioButtons(item, details);
        break;
    case FacadeType::Bool:
        item.setDefaultValue(details["default"].asBool());
        break;
    default:
        break;
    }
}

std::optional<CountRange> TemplateItemReader::parseCountRange(const Value& value)
{
    if (!value.isArray() || value.size() < 2)
        return std::nullopt;
    return CountRange{value[0].asInt(), value[1].asInt()};
}
