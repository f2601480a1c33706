#include "tools/rulesctl/lint/checks.h"

#include "Protocol/calibration/calibrateareatemplate.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valuecompare.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/jsonkind.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

#include <algorithm>

using kql::Json::Value;

namespace
{

/// What each type of a number box takes as default.
unsigned numberBoxKinds(ValueType type)
{
    switch (type) {
    case ValueType::Int:
        return TemplateMember::Whole | TemplateMember::Null;
    case ValueType::Float:
        return TemplateMember::Number | TemplateMember::Null;
    case ValueType::String:
        return TemplateMember::Text | TemplateMember::Null;
    case ValueType::Object:
        return TemplateMember::Object | TemplateMember::Null;
    default:
        return TemplateMember::Null;
    }
}

unsigned kindsFor(const RuleProtocolItem& item, const TemplateMember& member)
{
    if (item.valueType() == ValueType::None)
        return member.kinds;
    switch (item.facade()) {
    case FacadeType::InputBoxNumber:
        return numberBoxKinds(item.valueType());
    case FacadeType::RadioButton:
        return item.valueType() == ValueType::Object ? TemplateMember::Text | TemplateMember::Object
                                                     : TemplateMember::Text;
    case FacadeType::CheckBox:
        return TemplateMember::Text;
    default:
        return TemplateMember::Switch;
    }
}

/// What new entries start with.
QString textOf(const QVariant& value)
{
    if (!value.isValid())
        return QStringLiteral("new entries have none");
    return QStringLiteral("read as ") +
           (value.toString().isEmpty() ? QStringLiteral("an empty text") : value.toString());
}

void judgeKind(const RuleProtocolItem& item, const Value& value, const std::string& pointer,
               Findings& findings)
{
    const TemplatePlace place = TemplateMembers::detailsOf(item.facade());
    const TemplateMember* const member = TemplateMembers::find(place, "default");
    const unsigned kinds = member ? kindsFor(item, *member) : 0;
    if (!member || JsonKind::isAmong(value, kinds))
        return;
    const QStringList names = JsonKind::names(kinds);
    FindingMaker::add(findings, "wrong-kind", pointer, value,
                      QStringLiteral("a default of this control is %1; %2")
                          .arg(names.join(QLatin1String(" or ")), textOf(item.defaultValue())))
        .expected = names;
}

void judgeRange(const RuleProtocolItem& item, const Value& value, const std::string& pointer,
                Findings& findings)
{
    const double least = item.rangeMinimum().toDouble();
    const double most = item.rangeMaximum().toDouble();
    const bool isJudged = item.rangeMinimum().isValid() && least <= most && value.isNumeric();
    if (isJudged && (value.asDouble() < least || value.asDouble() > most))
        FindingMaker::add(
            findings, "default-range", pointer, value,
            QStringLiteral("the default is outside of %1 to %2")
                .arg(QString::number(least, 'g', 10), QString::number(most, 'g', 10)));
}

void judgeChoice(const RuleProtocolItem& item, const Value& value, const std::string& pointer,
                 Findings& findings)
{
    const QString text = item.defaultValue().toStringList().value(0);
    const auto isText = [&](const EnumOption& option) {
        return ComparableText::of(option.value, item.valueType()) ==
               ComparableText::of(text, item.valueType());
    };
    const QList<EnumOption>& options = item.enumeration();
    if (!item.defaultValue().isValid() || std::any_of(options.begin(), options.end(), isText))
        return;
    QStringList choices;
    for (const EnumOption& option : options)
        choices.append(option.value);
    Finding& finding = FindingMaker::add(findings, "default-choice", pointer, value,
                                         QStringLiteral("the default is none of the choices"));
    const bool isSpelling =
        !value.isObject() && !value.isArray() && item.valueType() != ValueType::Object;
    if (isSpelling)
        FindingMaker::expect(finding, text, choices);
    else
        finding.expected = choices;
}

void judgeControl(const LintedControl& control, Findings& findings)
{
    const Value* const value = control.details ? control.details->find("default") : nullptr;
    if (!value || !control.item)
        return;
    const RuleProtocolItem& item = *control.item;
    const std::string pointer = control.detailsPointer + "/default";
    judgeKind(item, *value, pointer, findings);
    const ValueType type = item.valueType();
    if (item.facade() == FacadeType::InputBoxNumber &&
        (type == ValueType::Int || type == ValueType::Float))
        judgeRange(item, *value, pointer, findings);
    if (item.facade() == FacadeType::CheckBox || item.facade() == FacadeType::RadioButton)
        judgeChoice(item, *value, pointer, findings);
}

void judgeCalibration(const LintedSection& section, Findings& findings)
{
    const CalibrateAreaTemplate& area = *CalibrateAreaTemplate::of(*section.data);
    judgeRange(*area.horizontalLengthItem(), (*section.json)["defaultWidth"],
               section.pointer + "/defaultWidth", findings);
    judgeRange(*area.verticalLengthItem(), (*section.json)["defaultHeight"],
               section.pointer + "/defaultHeight", findings);
}

} // namespace

void Checks::defaults(const LintedTemplate& linted, Findings& findings)
{
    for (const LintedSection& section : linted.sections()) {
        if (section.data && section.place == TemplatePlace::CalibrateArea)
            judgeCalibration(section, findings);
        for (const LintedControl& control : section.controls)
            judgeControl(control, findings);
    }
}
