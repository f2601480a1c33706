#pragma once

#include "tools/rulesctl/lint/finding.h"

class LintedTemplate;

/// What lint judges of a template, a family of codes each. A check adds what it finds, with
/// pointers; positions come later.
namespace Checks
{

using Check = void (*)(const LintedTemplate& linted, Findings& findings);

/// unknown-key, wrong-kind, missing-member.
void shape(const LintedTemplate& linted, Findings& findings);
/// unknown-value.
void spelling(const LintedTemplate& linted, Findings& findings);
/// equal-names of controls, missing-details, unused-details.
void keys(const LintedTemplate& linted, Findings& findings);
/// unknown-reference.
void references(const LintedTemplate& linted, Findings& findings);
/// depend-ignored, and dependency-cycle of what is read.
void dependencies(const LintedTemplate& linted, Findings& findings);
/// never-shown, dependency-cycle of conditions.
void conditions(const LintedTemplate& linted, Findings& findings);
/// default-range, default-choice.
void defaults(const LintedTemplate& linted, Findings& findings);
/// range-reversed, range-fraction.
void ranges(const LintedTemplate& linted, Findings& findings);
/// count-unmet.
void counts(const LintedTemplate& linted, Findings& findings);
/// limit.
void limits(const LintedTemplate& linted, Findings& findings);
/// parent-missing.
void parents(const LintedTemplate& linted, Findings& findings);
/// place-missing, place-unwritable.
void places(const LintedTemplate& linted, Findings& findings);
/// place-shared.
void sharedPlaces(const LintedTemplate& linted, Findings& findings);
/// figure-hidden.
void figures(const LintedTemplate& linted, Findings& findings);

} // namespace Checks
