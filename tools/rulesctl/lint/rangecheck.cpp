#include "tools/rulesctl/lint/checks.h"

#include "Protocol/templateitemreader.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/jsonpointer.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

#include <cmath>

using kql::Json::Value;

namespace
{

constexpr int kPair = 2;

/// @p isOfPoints says that it counts a figure's points, where a second below 1 is no limit.
void judge(const Value& pair, const std::string& pointer, bool isOfPoints, Findings& findings)
{
    for (int i = 0; pair.isArray() && i < kPair; ++i) {
        if (pair[i].isDouble() && std::floor(pair[i].asDouble()) != pair[i].asDouble())
            FindingMaker::add(findings, "range-fraction", JsonPointer::element(pointer, i), pair[i],
                              QStringLiteral("read as %1").arg(pair[i].asInt()));
    }
    const auto range = TemplateItemReader::parseCountRange(pair);
    const bool isReversed = range && range->min > range->max && !(isOfPoints && range->max < 1);
    if (isReversed)
        FindingMaker::add(findings, "range-reversed", pointer, pair,
                          QStringLiteral("the first number is above the second"));
}

/// All pairs that @p object has as members of @p place. Under a facade that is spelled wrong they
/// may be of points.
void judgeAll(const Value& object, TemplatePlace place, const std::string& pointer,
              Findings& findings)
{
    for (const TemplateMember& member : TemplateMembers::of(place)) {
        const bool isOfPoints = place == TemplatePlace::FigureDetails ||
                                place == TemplatePlace::UnsureDetails ||
                                std::string_view(member.name) == "pointOfArea";
        if (member.isPair)
            judge(object[member.name], JsonPointer::member(pointer, member.name), isOfPoints,
                  findings);
    }
}

} // namespace

void Checks::ranges(const LintedTemplate& linted, Findings& findings)
{
    for (const LintedSection& section : linted.sections()) {
        // Rules that are edited per lane are as many as the lanes; their own count is not read.
        if (!section.isPerLane())
            judgeAll(*section.json, section.place, section.pointer, findings);
    }
    const Value& items = linted.document()["configItems"];
    for (int i = 0; items.isObject() && i < items.size(); ++i) {
        const Value& details = items.memberValue(i);
        judgeAll(details, LintedTemplate::placeOfDetails(details),
                 JsonPointer::member("/configItems", items.memberName(i)), findings);
    }
}
