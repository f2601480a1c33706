#include "tools/rulesctl/lint/checks.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/rules/rulesprotocol.h"
#include "tools/rulesctl/lint/conditions.h"
#include "tools/rulesctl/lint/entryplace.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

#include <algorithm>
#include <map>

using kql::Json::Value;

namespace
{

/// What lies in a place.
struct Sharer {
    const LintedControl* control;
    Conditions::Chain conditions;
    QString name;
};

/// Figures are written whether they apply or not.
bool areApart(const Sharer& one, const Sharer& other)
{
    const bool isFigure = one.control->item->isFigure() || other.control->item->isFigure();
    return !isFigure && Conditions::exclude(one.conditions, other.conditions);
}

/// What every rule has besides its attributes, where @p path leads into that; null elsewhere.
QString builtInAt(const JsonPath& path, bool areTyped)
{
    const auto& parts = path.parts();
    const std::string& first = parts.front().name;
    if (first == ConfigMember::kName)
        return QStringLiteral("the rule's name");
    if (first == ConfigMember::kEnable)
        return QStringLiteral("the rule's switch");
    const bool isType = first == ConfigMember::kConfig && !parts.front().isArray &&
                        parts.size() > 1 && parts[1].name == ConfigMember::kType;
    return isType && areTyped ? QStringLiteral("the algorithm's code") : QString();
}

/// Finds what shares a place in the entries of one section.
class SharedPlaces
{
public:
    SharedPlaces(const LintedTemplate& linted, const LintedSection& section, Findings& findings)
        : m_hasMembers(section.type == SceneType::Rules),
          m_areTyped(RulesProtocol::isTyped(linted.algorithmId())),
          m_prototype(section.prototype(linted.skeleton())),
          m_conditions(*section.dataTemplate()),
          m_findings(findings)
    {
    }

    void judge(const LintedControl& control)
    {
        const RuleProtocolItem& item = *control.item;
        const QString builtIn = m_hasMembers ? builtInAt(item.path(), m_areTyped) : QString();
        if (!builtIn.isNull())
            return add(control, builtIn + QStringLiteral(" lies there, and is written last"));
        const QString key = FindingMaker::quoted(item.key());
        place(EntryPlace::of(item, m_prototype), {&control, m_conditions.of(item), key});
        if (item.drawType() == BaseDrawType::Parallelogram)
            place(EntryPlace::of(ConfigMember::directionPath(), m_prototype),
                  {&control, {}, QStringLiteral("the direction of ") + key});
    }

private:
    void place(const EntryPlace& place, Sharer sharer)
    {
        auto& others = m_known[place];
        const auto other = std::find_if(others.begin(), others.end(), [&](const Sharer& before) {
            return !areApart(sharer, before);
        });
        if (other != others.end())
            add(*sharer.control,
                QStringLiteral("%1 and %2 lie in one place and may apply at the same time")
                    .arg(sharer.name, other->name));
        others.push_back(std::move(sharer));
    }

    void add(const LintedControl& control, const QString& message)
    {
        FindingMaker::add(m_findings, "place-shared", control.pointer + "/protocol/name",
                          (*control.json)["protocol"]["name"], message);
    }

    const bool m_hasMembers;
    const bool m_areTyped;
    const Value m_prototype;
    Conditions m_conditions;
    std::map<EntryPlace, std::vector<Sharer>> m_known;
    Findings& m_findings;
};

} // namespace

void Checks::sharedPlaces(const LintedTemplate& linted, Findings& findings)
{
    for (const LintedSection& section : linted.sections()) {
        if (!section.data)
            continue;
        SharedPlaces places(linted, section, findings);
        for (const LintedControl& control : section.controls) {
            if (control.item && !control.item->path().text().isEmpty())
                places.judge(control);
        }
    }
}
