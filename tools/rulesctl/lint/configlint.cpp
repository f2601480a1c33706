#include "tools/rulesctl/lint/configlint.h"

#include "Protocol/ruleparser.h"
#include "tools/rulesctl/lint/equalnames.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/jsonpointer.h"
#include "tools/rulesctl/lint/positions.h"
#include "tools/rulesctl/lint/savedentries.h"
#include "tools/rulesctl/lint/valuechanges.h"

using kql::Json::Value;

namespace
{

/// As far as @p path leads in @p config.
std::string pointerTo(const JsonPath& path, const Value& config)
{
    std::string pointer;
    const Value* value = &config;
    for (const JsonPath::Part& part : path.parts()) {
        value = value->find(part.name);
        if (!value)
            return pointer;
        pointer = JsonPointer::member(pointer, part.name);
        const bool goesOn = &part != &path.parts().back();
        if (goesOn && part.isArray && value->isArray() && !value->empty()) {
            value = &(*value)[0];
            pointer = JsonPointer::element(pointer, 0);
        }
    }
    return pointer;
}

/// What is long stands in neither place of a line.
QString change(const Value& left)
{
    constexpr int kMost = 60;
    const QString text = left.isNull() ? QString() : left.toCompactText();
    return text.isEmpty() || text.size() > kMost
               ? QStringLiteral("a save writes something else here")
               : QStringLiteral("a save writes %1 here").arg(text);
}

} // namespace

Findings ConfigLint::run(const ConfigText& text)
{
    Findings findings;
    QString why;
    if (m_rules.read(text.config, why))
        findLosses(text.config, findings);
    else
        FindingMaker::add(findings, "limit",
                          pointerTo(JsonPath(m_rules.parser().overfullPlace()), text.config),
                          Value(), why);
    EqualNames::find(text.utf8, text.base, Finding::Document::Config, findings);
    Positions::place(findings, text.utf8, text.base);
    for (Finding& finding : findings) {
        finding.document = Finding::Document::Config;
        finding.line += text.firstLine - 1;
    }
    return findings;
}

void ConfigLint::findLosses(const Value& config, Findings& findings) const
{
    Value written(kql::Json::ValueType::Object);
    QString why;
    const bool isSaved = m_rules.parser().writeData(written, why);
    const QString dropped = isSaved ? QStringLiteral("a save drops this")
                                    : QStringLiteral("nothing can be saved: ") + why;
    const auto tell = [&](ValueChanges::Kind kind, const std::string& pointer, const Value& found,
                          const Value& left) {
        const bool isDropped = kind == ValueChanges::Kind::Dropped;
        FindingMaker::add(findings, isDropped ? "value-dropped" : "value-changed", pointer, found,
                          isDropped ? dropped : change(left));
    };
    const SavedEntries entries(m_rules.parser(), config, written);
    const ValueChanges changes(
        tell, [&](const ValueChanges& all, const Value& before, const std::string& pointer) {
            return isSaved && entries.compare(before, pointer, all, tell);
        });
    changes.compare(config, written, {});
}
