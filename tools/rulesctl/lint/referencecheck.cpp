#include "tools/rulesctl/lint/checks.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruleprotocolitem.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/jsonpointer.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

using kql::Json::Value;

namespace
{

/// What a section may name: its scene's attributes, which are the controls and, where rules are
/// edited per lane, those that the lanes bring along.
QStringList namesIn(const LintedSection& section)
{
    QStringList names;
    for (const LintedControl& control : section.controls)
        names.append((*control.json)["key"].asString());
    if (!section.isPerLane())
        return names;
    for (const auto& item : section.dataTemplate()->items()) {
        if (!names.contains(item->key()))
            names.append(item->key());
    }
    return names;
}

void judge(const Value& key, const std::string& pointer, const QStringList& names,
           Findings& findings)
{
    if (!key.isString() || names.contains(key.asString()))
        return;
    Finding& finding = FindingMaker::add(findings, "unknown-reference", pointer, key,
                                         QStringLiteral("no control of this section has the key %1")
                                             .arg(FindingMaker::quoted(key.asString())));
    FindingMaker::expect(finding, key.asString(), names);
}

void judgeControl(const LintedControl& control, const QStringList& names, Findings& findings)
{
    const Value& json = *control.json;
    judge(json["valid"]["controlKey"], control.pointer + "/valid/controlKey", names, findings);
    const Value& depend = json["depend"];
    for (int i = 0; depend.isArray() && i < depend.size(); ++i)
        judge(depend[i]["key"], JsonPointer::element(control.pointer + "/depend", i) + "/key",
              names, findings);
}

} // namespace

void Checks::references(const LintedTemplate& linted, Findings& findings)
{
    for (const LintedSection& section : linted.sections()) {
        const QStringList names = namesIn(section);
        for (const LintedControl& control : section.controls)
            judgeControl(control, names, findings);
        const Value& checks = (*section.json)["checkValueControls"];
        const bool hasChecks = section.place == TemplatePlace::Rules && checks.isArray();
        for (int i = 0; hasChecks && i < checks.size(); ++i) {
            const std::string at = JsonPointer::element(section.pointer + "/checkValueControls", i);
            judge(checks[i]["firstKey"], at + "/firstKey", names, findings);
            judge(checks[i]["secondKey"], at + "/secondKey", names, findings);
        }
    }
}
