#pragma once

#include "tools/rulesctl/lint/finding.h"

#include <string_view>
#include <vector>

/// The codes of findings, each with what it is; the reference of lint has a heading for each.
namespace LintCodes
{

struct Code {
    std::string_view name;
    Finding::Severity severity;
};

const std::vector<Code>& all();
/// Of a name in all(); of any other that of an error.
Finding::Severity severityOf(std::string_view name);

} // namespace LintCodes
