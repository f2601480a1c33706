#include "tools/rulesctl/lint/checks.h"

#include "Protocol/templateitemreader.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/jsonpointer.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

#include <QSet>

#include <algorithm>

using kql::Json::Value;

namespace
{

std::string pointerOf(const LintedControl& control, int element)
{
    return JsonPointer::element(control.pointer + "/depend", element);
}

void findIgnored(const LintedSection& section, int readCount, Findings& findings)
{
    for (int i = 0; i < int(section.controls.size()); ++i) {
        const LintedControl& control = section.controls[std::size_t(i)];
        const Value& depend = (*control.json)["depend"];
        for (int j = 0; depend.isArray() && j < depend.size(); ++j) {
            const bool isRead = i == j && j < readCount;
            if (!isRead)
                FindingMaker::add(findings, "depend-ignored", pointerOf(control, j), depend[j],
                                  QStringLiteral("never read: of the n-th control the n-th "
                                                 "dependency is taken, as long as there is one"));
        }
    }
}

/// All controls with a list depend on all keys that are read: those of them that are such keys name
/// each other.
void findCircle(const LintedSection& section, const QStringList& keys, Findings& findings)
{
    const auto isInCircle = [&keys](const LintedControl& control) {
        return (*control.json)["depend"].isArray() &&
               keys.contains((*control.json)["key"].asString());
    };
    QStringList circle;
    for (const LintedControl& control : section.controls) {
        if (isInCircle(control))
            circle.append((*control.json)["key"].asString());
    }
    const auto first = std::find_if(section.controls.begin(), section.controls.end(), isInCircle);
    if (first == section.controls.end())
        return;
    const auto tell = [&](const LintedControl& control, int element) {
        const Value& key = (*control.json)["depend"][element]["key"];
        FindingMaker::add(findings, "dependency-cycle", pointerOf(control, element) + "/key", key,
                          QStringLiteral("these depend on each other in a circle: ") +
                              circle.join(QLatin1String(", ")));
    };
    const Value& own = (*first->json)["depend"];
    for (int j = 0; j < own.size(); ++j) {
        if (circle.contains(own[j]["key"].asString()))
            return tell(*first, j);
    }
    // What it names itself is not read; it got the key from another control.
    const int read = keys.indexOf(circle.first());
    tell(section.controls[std::size_t(read)], read);
}

} // namespace

void Checks::dependencies(const LintedTemplate& linted, Findings& findings)
{
    for (const LintedSection& section : linted.sections()) {
        if (section.controls.empty())
            continue;
        const Value& controls = (*section.json)["controls"];
        findIgnored(section, TemplateItemReader::countDependencies(controls), findings);
        findCircle(section, TemplateItemReader::parseDependencies(controls), findings);
    }
}
