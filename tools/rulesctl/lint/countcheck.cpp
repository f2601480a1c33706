#include "tools/rulesctl/lint/checks.h"

#include "Protocol/ruledata.h"
#include "Protocol/templateitemreader.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

namespace
{

/// The member that counts the entries of a section.
std::string countOf(TemplatePlace place)
{
    switch (place) {
    case TemplatePlace::CalibrateArea:
    case TemplatePlace::FightCalibrate:
        return "celibateArea";
    case TemplatePlace::Lanes:
        return "countOfLane";
    default:
        return "count";
    }
}

QString whyUnmet(const LintedSection& section, CountRange count)
{
    if (count.min >= 2 && section.data->saveNotices().takesOneEntry())
        return QStringLiteral("the skeleton has an object there, which is one entry");
    if (count.max <= 0 && section.type == SceneType::Global)
        return QStringLiteral("there is always an entry of this section");
    return {};
}

} // namespace

void Checks::counts(const LintedTemplate& linted, Findings& findings)
{
    for (const LintedSection& section : linted.sections()) {
        const std::string name = countOf(section.place);
        const kql::Json::Value& pair = (*section.json)[name];
        const auto count = TemplateItemReader::parseCountRange(pair);
        if (!count || !section.data || section.isPerLane())
            continue;
        const QString why = whyUnmet(section, *count);
        if (!why.isEmpty())
            FindingMaker::add(findings, "count-unmet", section.pointer + '/' + name, pair,
                              QStringLiteral("no configuration meets this: ") + why);
    }
}
