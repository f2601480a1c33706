#include "tools/rulesctl/lint/checks.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruleprotocolitem.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/jsonpointer.h"
#include "tools/rulesctl/lint/lintedtemplate.h"
#include "tools/rulesctl/lint/suggestion.h"

#include <QSet>

using FindingMaker::quoted;
using kql::Json::Value;

namespace
{

constexpr qint64 kMostPairs = 200000; // of names to be compared, letter by letter

QString keyOf(const LintedControl& control)
{
    return (*control.json)["key"].asString();
}

/// Of the attributes that lanes bring along, whose values those of their rules would share.
QSet<QString> keysOfLanes(const LintedSection& section)
{
    QSet<QString> keys;
    for (const auto& item : section.dataTemplate()->items()) {
        if (item->templateName().toStdString() != section.name)
            keys.insert(item->key());
    }
    return keys;
}

void findEqualKeys(const LintedSection& section, Findings& findings)
{
    QSet<QString> known = section.isPerLane() ? keysOfLanes(section) : QSet<QString>();
    for (const LintedControl& control : section.controls) {
        if (!(*control.json)["key"].isString())
            continue;
        const QString key = keyOf(control);
        if (known.contains(key))
            FindingMaker::add(findings, "equal-names", control.pointer + "/key",
                              (*control.json)["key"],
                              QStringLiteral("an attribute before has the key %1").arg(quoted(key)))
                .isAtKey = true;
        known.insert(key);
    }
}

/// The keys of all controls, in their order.
QStringList keysOf(const LintedTemplate& linted)
{
    QStringList keys;
    for (const LintedSection& section : linted.sections()) {
        for (const LintedControl& control : section.controls)
            keys.append(keyOf(control));
    }
    return keys;
}

/// Those of @p names that @p others lack: one of them may be the other one of a misspelt pair.
QStringList without(const QStringList& names, const QStringList& others)
{
    const QSet<QString> known(others.begin(), others.end());
    QStringList left;
    for (const QString& name : names) {
        if (!known.contains(name))
            left.append(name);
    }
    return left;
}

void suggest(Finding& finding, const QString& name, const QStringList& others)
{
    FindingMaker::expect(finding, name, others);
    finding.expected.reset();
}

} // namespace

void Checks::keys(const LintedTemplate& linted, Findings& findings)
{
    const Value& items = linted.document()["configItems"];
    const QStringList names = items.memberNames();
    const QStringList keys = keysOf(linted);
    QStringList unused = without(names, keys);
    const QStringList unusedNames = unused;
    QStringList bare = without(keys, names);
    if (qint64{unused.size()} * bare.size() > kMostPairs) {
        unused.clear();
        bare.clear();
    }
    for (const LintedSection& section : linted.sections()) {
        findEqualKeys(section, findings);
        for (const LintedControl& control : section.controls) {
            if (control.details || !(*control.json)["key"].isString())
                continue;
            const QString key = keyOf(control);
            suggest(FindingMaker::add(
                        findings, "missing-details", control.pointer + "/key",
                        (*control.json)["key"],
                        QStringLiteral("\"configItems\" has no details of %1").arg(quoted(key))),
                    key, unused);
        }
    }
    for (const QString& name : unusedNames) {
        Finding& finding = FindingMaker::add(
            findings, "unused-details", JsonPointer::member("/configItems", name.toStdString()),
            items[name.toStdString()],
            QStringLiteral("no control has the key %1").arg(quoted(name)));
        finding.isAtKey = true;
        suggest(finding, name, bare);
    }
}
