#include "tools/rulesctl/lint/checks.h"

#include "Protocol/jsonpath.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

using kql::Json::Value;

namespace
{

bool canBeMade(const JsonPath& path, const Value& skeleton)
{
    Value made = skeleton;
    return !path.text().isEmpty() && path.create(made);
}

void judge(const LintedSection& section, const Value* skeleton, Findings& findings)
{
    const Value* const parent = section.json->find("parent");
    if (!parent) {
        FindingMaker::add(findings, "parent-missing", section.pointer, Value(),
                          QStringLiteral("the section has no \"parent\", so nothing is read"));
        return;
    }
    const JsonPath path(parent->asString());
    if (!skeleton || !parent->isString() || path.find(*skeleton))
        return;
    const bool isMade = canBeMade(path, *skeleton);
    FindingMaker::add(findings, "parent-missing", section.pointer + "/parent", *parent,
                      isMade
                          ? QStringLiteral("the skeleton lacks this path; a save makes it")
                          : QStringLiteral("the skeleton lacks this path, and it cannot be made"))
        .severity = isMade ? Finding::Severity::Warning : Finding::Severity::Error;
}

} // namespace

void Checks::parents(const LintedTemplate& linted, Findings& findings)
{
    for (const LintedSection& section : linted.sections()) {
        if (section.json->isObject())
            judge(section, linted.skeleton(), findings);
    }
}
