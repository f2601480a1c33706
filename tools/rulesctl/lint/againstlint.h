#pragma once

#include "tools/rulesctl/lint/finding.h"

class LintedTemplate;

/// Tells what configurations of an older template lose with a newer one.
namespace AgainstLint
{

/// Findings about @p newer, without positions: values whose place no control has any more, or one
/// with another type, and choices that are gone. "found" is the older protocol or choice. @p older
/// is not too large to be read; of a @p newer one that is, nothing is told.
Findings run(const LintedTemplate& newer, const LintedTemplate& older);

} // namespace AgainstLint
