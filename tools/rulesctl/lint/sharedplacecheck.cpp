#include "tools/rulesctl/lint/checks.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entrywriter.h"
#include "Protocol/jsonpath.h"
#include "Protocol/ruleprotocolitem.h"
#include "tools/rulesctl/lint/conditions.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

#include <algorithm>
#include <map>
#include <tuple>

using kql::Json::Value;

namespace
{

/// A place in an entry in the one form of all its spellings.
struct Place {
    const Value* field; ///< null where the entry has none yet, which its name then stands for
    QString name;
    int index; ///< -1 for the field as a whole

    bool operator<(const Place& other) const
    {
        return std::tie(field, name, index) < std::tie(other.field, other.name, other.index);
    }
};

/// An index counts where there is a list or, in the place of null, will be one.
Place placeOf(const RuleProtocolItem& item, const Value& prototype)
{
    const JsonPath& path = item.path();
    const Value* const field = path.find(prototype);
    QString name;
    if (!field)
        name = path.text().endsWith(QLatin1String("[]")) ? path.text().chopped(2) : path.text();
    const bool isList = field && field->isArray();
    const bool isOpen = !field || field->isNull();
    const int index = isList ? std::max(item.index(), -1) : isOpen ? std::max(item.index(), 0) : -1;
    return {field, name, item.isFigure() ? -1 : index};
}

struct Sharer {
    const LintedControl* control;
    Conditions::Chain conditions;
};

/// Figures are written whether they apply or not.
bool areApart(const Sharer& one, const Sharer& other)
{
    const bool isFigure = one.control->item->isFigure() || other.control->item->isFigure();
    return !isFigure && Conditions::exclude(one.conditions, other.conditions);
}

void judge(const LintedSection& section, const Value& skeleton, Findings& findings)
{
    Conditions conditions(*section.dataTemplate());
    const EntryWriter writer(*section.data, QString::fromStdString(section.name));
    const JsonPath parent((*section.json)["parent"].asString());
    const Value prototype = writer.prototype(parent.firstEntryIn(skeleton));
    std::map<Place, std::vector<Sharer>> known;
    for (const LintedControl& control : section.controls) {
        if (!control.item || control.item->path().text().isEmpty())
            continue;
        const Sharer sharer{&control, conditions.of(*control.item)};
        auto& others = known[placeOf(*control.item, prototype)];
        const auto other = std::find_if(others.begin(), others.end(), [&](const Sharer& before) {
            return !areApart(sharer, before);
        });
        if (other != others.end())
            FindingMaker::add(
                findings, "place-shared", control.pointer + "/protocol/name",
                (*control.json)["protocol"]["name"],
                QStringLiteral("%1 lies there, too, and may apply at the same time")
                    .arg(FindingMaker::quoted((*other->control->json)["key"].asString())));
        others.push_back(sharer);
    }
}

} // namespace

void Checks::sharedPlaces(const LintedTemplate& linted, Findings& findings)
{
    const Value nothing;
    const Value& skeleton = linted.skeleton() ? *linted.skeleton() : nothing;
    for (const LintedSection& section : linted.sections()) {
        if (section.data)
            judge(section, skeleton, findings);
    }
}
