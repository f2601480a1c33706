#include "tools/rulesctl/lint/checks.h"

#include "host/api/limits.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

using kql::Json::Value;

namespace
{

/// The reader names what lies in the document, which has a place for it.
std::string pointerTo(const Value* value, const LintedTemplate& linted)
{
    for (const LintedSection& section : linted.sections()) {
        if (value == &(*section.json)["controls"])
            return section.pointer + "/controls";
        for (const LintedControl& control : section.controls) {
            for (const char* member : {"enumeration", "default"}) {
                if (control.details && value == &(*control.details)[member])
                    return control.detailsPointer + '/' + member;
            }
        }
    }
    return {};
}

} // namespace

void Checks::limits(const LintedTemplate& linted, Findings& findings)
{
    for (const Value* tooLarge : linted.tooLarge())
        FindingMaker::add(
            findings, "limit", pointerTo(tooLarge, linted), Value(),
            QStringLiteral("a section has at most %1 attributes and %2 choices, long ones counting "
                           "as several; the template is refused")
                .arg(Limits::kAttributes)
                .arg(Limits::kChoices));
}
