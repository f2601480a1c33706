#include "tools/rulesctl/lint/againstlint.h"

#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valuecompare.h"
#include "tools/rulesctl/lint/entryplace.h"
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

/// Where the entries of @p section are read; empty where none are.
QString parentOf(const LintedSection& section)
{
    return EntryPlace::fieldOf((*section.json)["parent"].asString());
}

/// What an older section has is looked for in the newer one of the same name.
class Comparison
{
public:
    /// @p newer is null where the section is gone. @p skeleton is that of the older template, whose
    /// configurations are like it; null for none.
    Comparison(const LintedSection& older, const LintedSection* newer, const Value* skeleton,
               std::string around, Findings& findings)
        : m_older(older), m_newer(newer), m_around(std::move(around)), m_findings(findings)
    {
        if (!older.data)
            return;
        m_entry = older.prototype(skeleton);
        const bool isThere = newer && parentOf(older) == parentOf(*newer);
        for (std::size_t i = 0; isThere && i < newer->controls.size(); ++i) {
            if (const LintedControl& control = newer->controls[i]; control.item)
                m_candidates.push_back({&control, EntryPlace::of(*control.item, m_entry)});
        }
    }

    void run()
    {
        if (parentOf(m_older).isEmpty())
            return; // nothing was read of it, nor saved
        for (const LintedControl& control : m_older.controls) {
            if (control.item && !control.item->path().text().isEmpty())
                compareControl(control);
        }
        if (m_older.controls.empty())
            compareParent();
    }

private:
    /// A control of the newer section, and where it leads in an older entry.
    struct Candidate {
        const LintedControl* control;
        EntryPlace place;
    };

    /// The control that reads what @p older did, of several the one with its key; null for none.
    const LintedControl* readerOf(const LintedControl& older) const
    {
        const EntryPlace place = EntryPlace::of(*older.item, m_entry);
        const LintedControl* reader = nullptr;
        for (const Candidate& candidate : m_candidates) {
            if (!(candidate.place == place))
                continue;
            if (keyOf(*candidate.control) == keyOf(older))
                return candidate.control;
            if (!reader)
                reader = candidate.control;
        }
        return reader;
    }

    void compareControl(const LintedControl& older)
    {
        const LintedControl* const reader = readerOf(older);
        const LintedControl* const same = m_newer ? m_newer->find(keyOf(older)) : nullptr;
        const Value& protocol = (*older.json)["protocol"];
        // Every reader of its key has another place then.
        if (reader && same && keyOf(*reader) != keyOf(older))
            add("value-changed", same->pointer, protocol,
                QStringLiteral("the place that it had is that of the control %1 now")
                    .arg(quoted(keyOf(*reader))));
        if (!reader && (!same || !same->item))
            add("value-dropped", placeOfControls(), protocol,
                QStringLiteral("the control %1 is gone").arg(quoted(keyOf(older))));
        else if (!reader)
            add("value-dropped", same->pointer, protocol,
                QStringLiteral("no control reads the place that it had"));
        else if (!keepsType(*older.item, *reader->item))
            add("value-changed", reader->pointer, protocol,
                QStringLiteral("the type of its value is another"));
        else if (hasChoices(*older.item) && hasChoices(*reader->item))
            compareChoices(older, *reader);
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
    void compareParent()
    {
        const Value& parent = (*m_older.json)["parent"];
        if (!m_newer)
            add("value-dropped", m_around, parent,
                QStringLiteral("the section %1 is gone")
                    .arg(quoted(QString::fromStdString(m_older.name))));
        else if (parentOf(m_older) != parentOf(*m_newer))
            add("value-dropped",
                m_newer->json->isMember("parent") ? m_newer->pointer + "/parent" : m_newer->pointer,
                parent, QStringLiteral("the section reads another place"));
    }

    /// What there is of it: the section where it has none, or what sections lie in.
    std::string placeOfControls() const
    {
        if (!m_newer)
            return m_around;
        return m_newer->json->isMember("controls") ? m_newer->pointer + "/controls"
                                                   : m_newer->pointer;
    }

    void add(const char* code, const std::string& pointer, const Value& found,
             const QString& message)
    {
        FindingMaker::add(m_findings, code, pointer, found,
                          QStringLiteral("against the older template: ") + message);
    }

    const LintedSection& m_older;
    const LintedSection* m_newer;
    const std::string m_around;
    Value m_entry; ///< as configurations of the older template have it
    std::vector<Candidate> m_candidates;
    Findings& m_findings;
};

} // namespace

Findings AgainstLint::run(const LintedTemplate& newer, const LintedTemplate& older)
{
    Findings findings;
    if (!newer.tooLarge().empty())
        return findings; // which is told, and nothing is read of it
    const bool hasRules = newer.document()["configDescription"].isMember("ruleDescription");
    const std::string around =
        hasRules ? "/configDescription/ruleDescription" : "/configDescription";
    const auto& sections = newer.sections();
    for (const LintedSection& section : older.sections()) {
        const auto same =
            std::find_if(sections.begin(), sections.end(), [&section](const LintedSection& other) {
                return other.name == section.name;
            });
        Comparison(section, same == sections.end() ? nullptr : &*same, older.skeleton(), around,
                   findings)
            .run();
    }
    return findings;
}
