#include "tools/rulesctl/lint/lintcodes.h"

#include <algorithm>

const std::vector<LintCodes::Code>& LintCodes::all()
{
    constexpr auto kError = Finding::Severity::Error;
    constexpr auto kWarning = Finding::Severity::Warning;
    static const std::vector<Code> codes{
        {"unknown-key", kWarning},
        {"unknown-value", kError},
        {"wrong-kind", kError},
        {"missing-member", kError},
        {"equal-names", kError},
        {"missing-details", kWarning},
        {"unused-details", kWarning},
        {"unknown-reference", kError},
        {"depend-ignored", kError},
        {"dependency-cycle", kWarning},
        {"never-shown", kError},
        {"default-range", kError},
        {"default-choice", kError},
        {"range-reversed", kError},
        {"range-fraction", kError},
        {"count-unmet", kError},
        {"limit", kError},
        {"parent-missing", kError},
        {"place-missing", kError},
        {"place-unwritable", kError},
        {"place-shared", kError},
        {"figure-hidden", kError},
        {"value-dropped", kError},
        {"value-changed", kError},
    };
    return codes;
}

Finding::Severity LintCodes::severityOf(std::string_view name)
{
    const auto found = std::find_if(all().begin(), all().end(),
                                    [name](const Code& code) { return code.name == name; });
    return found == all().end() ? Finding::Severity::Error : found->severity;
}
