#include "tools/rulesctl/lint/checks.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruleprotocolitem.h"
#include "tools/rulesctl/lint/conditions.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

#include <QSet>

namespace
{

/// Whether the row of each controller can have one of the values, and one that has a single value
/// can have one that all conditions on it name.
bool canBeMet(const std::vector<Conditions::Wanted>& wanted)
{
    for (const Conditions::Wanted& each : wanted) {
        if (Conditions::possible(*each.controller, each.values).isEmpty())
            return false;
    }
    return !Conditions::exclude(wanted, wanted);
}

const RuleProtocolItem* controllerOf(const DataTemplate& dataTemplate, const RuleProtocolItem& item)
{
    return item.validity().isEmpty()
               ? nullptr
               : Conditions::controllerOf(dataTemplate, item.validity().first());
}

/// The attributes from @p item on, each named by the condition of the one before, that lead back to
/// it; empty where they do not.
QStringList circleFrom(const DataTemplate& dataTemplate, const RuleProtocolItem& item)
{
    QStringList circle{item.key()};
    QSet<const RuleProtocolItem*> visited{&item};
    const RuleProtocolItem* next = controllerOf(dataTemplate, item);
    for (; next && !visited.contains(next); next = controllerOf(dataTemplate, *next)) {
        circle.append(next->key());
        visited.insert(next);
    }
    return next == &item ? circle : QStringList();
}

void judgeSection(const LintedSection& section, Findings& findings)
{
    const DataTemplate& dataTemplate = *section.dataTemplate();
    QSet<QString> told;
    for (const LintedControl& control : section.controls) {
        if (!control.item || control.item->validity().isEmpty())
            continue;
        const kql::Json::Value& valid = (*control.json)["valid"];
        if (!canBeMet(Conditions::of(dataTemplate, *control.item)))
            FindingMaker::add(findings, "never-shown", control.pointer + "/valid", valid,
                              QStringLiteral("no choice ever meets this condition"));
        const QStringList circle = circleFrom(dataTemplate, *control.item);
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
