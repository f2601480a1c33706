#pragma once

#include "tools/rulesctl/lint/finding.h"

#include <string_view>

class LintedTemplate;

/// Judges a template by all checks.
namespace TemplateLint
{

/// What is to be said of @p linted, which was read from @p utf8: placed, sorted, each once.
Findings run(const LintedTemplate& linted, std::string_view utf8);
/// The same with @p more findings about the template, which have no positions yet.
Findings run(const LintedTemplate& linted, std::string_view utf8, Findings more);

} // namespace TemplateLint
