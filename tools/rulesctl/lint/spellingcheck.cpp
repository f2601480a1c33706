#include "tools/rulesctl/lint/checks.h"

#include "Protocol/calibration/calibrateareatemplate.h"
#include "Protocol/linedirections.h"
#include "Protocol/spellinglists.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/jsonpointer.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

using kql::Json::Value;

namespace
{

/// Tells of a text at @p pointer that is none of @p spellings; what is missing or no text has codes
/// of its own.
void judge(const Value& value, const std::string& pointer, const QStringList& spellings,
           Findings& findings)
{
    if (!value.isString() || spellings.contains(value.asString()))
        return;
    Finding& finding = FindingMaker::add(findings, "unknown-value", pointer, value,
                                         QStringLiteral("%1 is no spelling that is read here")
                                             .arg(FindingMaker::quoted(value.asString())));
    FindingMaker::expect(finding, value.asString(), spellings);
}

void judgeSection(const LintedSection& section, Findings& findings)
{
    const Value& json = *section.json;
    if (section.place == TemplatePlace::CalibrateArea)
        judge(json["method"], section.pointer + "/method", CalibrateAreaTemplate::methods(),
              findings);
    for (const LintedControl& control : section.controls)
        judge((*control.json)["protocol"]["type"], control.pointer + "/protocol/type",
              SpellingLists::valueTypes(), findings);
    const Value& checks = json["checkValueControls"];
    for (int i = 0; section.place == TemplatePlace::Rules && i < checks.size(); ++i) {
        const std::string check = JsonPointer::element(section.pointer + "/checkValueControls", i);
        judge(checks[i]["rule"]["operator"], check + "/rule/operator", SpellingLists::operators(),
              findings);
    }
}

void judgeDirections(const Value& details, const std::string& pointer, Findings& findings)
{
    const QStringList directions = SpellingLists::directions();
    const Value& choices = details["enumeration"];
    for (int i = 0; i < choices.size(); ++i)
        judge(choices[i]["value"], JsonPointer::element(pointer + "/enumeration", i) + "/value",
              directions, findings);
    judge(details["default"], pointer + "/default", directions, findings);
}

} // namespace

void Checks::spelling(const LintedTemplate& linted, Findings& findings)
{
    for (const LintedSection& section : linted.sections())
        judgeSection(section, findings);
    const Value& items = linted.document()["configItems"];
    for (int i = 0; items.isObject() && i < items.size(); ++i) {
        const std::string pointer = JsonPointer::member("/configItems", items.memberName(i));
        judge(items.memberValue(i)["facade"], pointer + "/facade", SpellingLists::facades(),
              findings);
        if (items.memberName(i) == LineDirections::key().toStdString())
            judgeDirections(items.memberValue(i), pointer, findings);
    }
}
