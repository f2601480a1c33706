#include "tools/rulesctl/lint/templatelint.h"

#include "tools/rulesctl/lint/checks.h"
#include "tools/rulesctl/lint/equalnames.h"
#include "tools/rulesctl/lint/positions.h"

#include <algorithm>

namespace
{

constexpr Checks::Check kChecks[] = {
    &Checks::shape,        &Checks::spelling,   &Checks::keys,     &Checks::references,
    &Checks::dependencies, &Checks::conditions, &Checks::defaults, &Checks::ranges,
    &Checks::counts,       &Checks::limits,     &Checks::parents,  &Checks::places,
    &Checks::sharedPlaces, &Checks::figures,
};

/// Details that several controls share were judged for each of them.
bool isSame(const Finding& a, const Finding& b)
{
    return a.code == b.code && a.pointer == b.pointer && a.line == b.line && a.column == b.column &&
           a.message == b.message && a.found == b.found;
}

} // namespace

Findings TemplateLint::run(const LintedTemplate& linted, std::string_view utf8)
{
    return run(linted, utf8, {});
}

Findings TemplateLint::run(const LintedTemplate& linted, std::string_view utf8, Findings more)
{
    for (const Checks::Check check : kChecks)
        check(linted, more);
    EqualNames::find(utf8, {}, Finding::Document::Template, more);
    Positions::place(more, utf8);
    more.erase(std::unique(more.begin(), more.end(), &isSame), more.end());
    return more;
}
