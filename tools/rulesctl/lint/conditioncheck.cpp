#include "tools/rulesctl/lint/checks.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruleprotocolitem.h"
#include "tools/rulesctl/lint/conditions.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

#include <QSet>

namespace
{

/// The attributes from @p item on, each named by the condition of the one before, that lead back to
/// it; empty where they do not.
QStringList circleFrom(Conditions& conditions, const RuleProtocolItem& item)
{
    QStringList circle{item.key()};
    QSet<const RuleProtocolItem*> visited{&item};
    const RuleProtocolItem* next = conditions.controllerOf(item);
    for (; next && !visited.contains(next); next = conditions.controllerOf(*next)) {
        circle.append(next->key());
        visited.insert(next);
    }
    return next == &item ? circle : QStringList();
}

void judgeSection(const LintedSection& section, Findings& findings)
{
    Conditions conditions(*section.dataTemplate());
    QSet<QString> told;
    for (const LintedControl& control : section.controls) {
        if (!control.item || control.item->validity().isEmpty())
            continue;
        const kql::Json::Value& valid = (*control.json)["valid"];
        if (!conditions.canBeMet(*control.item))
            FindingMaker::add(
                findings, "never-shown", control.pointer + "/valid", valid,
                QStringLiteral("no value of its controller ever meets this condition"));
        const QStringList circle = circleFrom(conditions, *control.item);
        if (circle.isEmpty() || told.contains(circle.first()))
            continue;
        told += QSet<QString>(circle.begin(), circle.end());
        FindingMaker::add(findings, "dependency-cycle", control.pointer + "/valid/controlKey",
                          valid["controlKey"],
                          QStringLiteral("the conditions of these name each other in a circle: ") +
                              circle.join(QLatin1String(", ")));
    }
}

} // namespace

void Checks::conditions(const LintedTemplate& linted, Findings& findings)
{
    for (const LintedSection& section : linted.sections()) {
        if (section.data)
            judgeSection(section, findings);
    }
}
