#include "tools/rulesctl/lint/againstlint.h"

#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valuecompare.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

#include <algorithm>

using FindingMaker::quoted;
using kql::Json::Value;

namespace
{

QString keyOf(const LintedControl& control)
{
    return (*control.json)["key"].asString();
}

/// The path without the brackets at its end, which say nothing of the place.
QString fieldOf(const RuleProtocolItem& item)
{
    const QString& path = item.path().text();
    return path.endsWith(QLatin1String("[]")) ? path.chopped(2) : path;
}

bool isSamePlace(const RuleProtocolItem& one, const RuleProtocolItem& other)
{
    return one.parent() == other.parent() && fieldOf(one) == fieldOf(other) &&
           one.index() == other.index();
}

/// Whole numbers are numbers, whatever else was done to an attribute.
bool keepsType(const RuleProtocolItem& older, const RuleProtocolItem& newer)
{
    const bool isWidened =
        older.valueType() == ValueType::Int && newer.valueType() == ValueType::Float;
    // A figure's points are of one type, whatever it says.
    const bool areFigures = older.isFigure() && newer.isFigure();
    return isWidened || areFigures || older.valueType() == newer.valueType();
}

bool hasChoices(const RuleProtocolItem& item)
{
    return item.facade() == FacadeType::RadioButton || item.facade() == FacadeType::CheckBox;
}

/// What the older sections have is looked for in the newer one of the same name.
class Comparison
{
public:
    Comparison(const LintedTemplate& newer, Findings& findings)
        : m_newer(newer), m_findings(findings)
    {
    }

    void compare(const LintedSection& older)
    {
        const auto& sections = m_newer.sections();
        const auto same =
            std::find_if(sections.begin(), sections.end(), [&older](const LintedSection& section) {
                return section.name == older.name;
            });
        const LintedSection* const newer = same == sections.end() ? nullptr : &*same;
        for (const LintedControl& control : older.controls) {
            if (control.item && !control.item->path().text().isEmpty())
                compareControl(control, newer);
        }
        if (older.controls.empty())
            compareParent(older, newer);
    }

private:
    static const LintedControl* controlFor(const LintedControl& older, const LintedSection* newer)
    {
        if (!newer)
            return nullptr;
        const LintedControl* const same = newer->find(keyOf(older));
        if (same && same->item && isSamePlace(*older.item, *same->item))
            return same;
        const auto other = std::find_if(
            newer->controls.begin(), newer->controls.end(), [&older](const LintedControl& control) {
                return control.item && isSamePlace(*older.item, *control.item);
            });
        return other == newer->controls.end() ? same : &*other;
    }

    void compareControl(const LintedControl& older, const LintedSection* section)
    {
        const LintedControl* const newer = controlFor(older, section);
        const Value& protocol = (*older.json)["protocol"];
        if (!newer || !newer->item) {
            add("value-dropped", placeOfControls(section), protocol,
                QStringLiteral("the control %1 is gone").arg(quoted(keyOf(older))));
            return;
        }
        if (!isSamePlace(*older.item, *newer->item))
            add("value-dropped", newer->pointer, protocol,
                QStringLiteral("no control reads the place that it had"));
        else if (!keepsType(*older.item, *newer->item))
            add("value-changed", newer->pointer, protocol,
                QStringLiteral("the type of its value is another"));
        else if (hasChoices(*older.item) && hasChoices(*newer->item))
            compareChoices(older, *newer);
    }

    void compareChoices(const LintedControl& older, const LintedControl& newer)
    {
        const auto& choices = newer.item->enumeration();
        const ValueType type = newer.item->valueType();
        for (int i = 0; i < older.item->enumeration().size(); ++i) {
            const QString value = ComparableText::of(older.item->enumeration()[i].value, type);
            const bool isThere =
                std::any_of(choices.begin(), choices.end(), [&](const EnumOption& choice) {
                    return ComparableText::of(choice.value, type) == value;
                });
            if (!isThere)
                add("value-dropped", newer.pointer, (*older.details)["enumeration"][i],
                    QStringLiteral("a choice is gone"));
        }
    }

    /// Of a section whose attributes the module names itself.
    void compareParent(const LintedSection& older, const LintedSection* newer)
    {
        const Value& parent = (*older.json)["parent"];
        if (!newer)
            add("value-dropped", placeOfControls(nullptr), parent,
                QStringLiteral("the section %1 is gone")
                    .arg(quoted(QString::fromStdString(older.name))));
        else if (parent != (*newer->json)["parent"])
            add("value-dropped",
                newer->json->isMember("parent") ? newer->pointer + "/parent" : newer->pointer,
                parent, QStringLiteral("the section reads another place"));
    }

    /// What there is of it: the section where it has none, or what sections lie in.
    std::string placeOfControls(const LintedSection* section) const
    {
        if (section)
            return section->json->isMember("controls") ? section->pointer + "/controls"
                                                       : section->pointer;
        const bool hasRules = m_newer.document()["configDescription"].isMember("ruleDescription");
        return hasRules ? "/configDescription/ruleDescription" : "/configDescription";
    }

    void add(const char* code, const std::string& pointer, const Value& found,
             const QString& message)
    {
        FindingMaker::add(m_findings, code, pointer, found,
                          QStringLiteral("against the older template: ") + message);
    }

    const LintedTemplate& m_newer;
    Findings& m_findings;
};

} // namespace

Findings AgainstLint::run(const LintedTemplate& newer, const LintedTemplate& older)
{
    Findings findings;
    Comparison comparison(newer, findings);
    for (const LintedSection& section : older.sections())
        comparison.compare(section);
    return findings;
}
