#pragma once

#include "tools/rulesctl/documents/loadedrules.h"
#include "tools/rulesctl/lint/finding.h"

#include <string_view>

/// A configuration in the text that it was read from.
struct ConfigText {
    std::string_view utf8;
    std::string base;               ///< points to the configuration in the document of the text
    const kql::Json::Value& config; ///< not owned
    int firstLine = 1;              ///< the number of the text's first line
};

/// Finds what a save would drop or change of one configuration after another. Of one thread.
class ConfigLint
{
public:
    /// @p rulesTemplate is one that the rules window takes.
    explicit ConfigLint(const TemplateDocument& rulesTemplate) : m_rules(rulesTemplate) {}

    /// What is to be said of @p text, placed and sorted.
    Findings run(const ConfigText& text);

private:
    void findLosses(const kql::Json::Value& config, Findings& findings) const;

    LoadedRules m_rules;
};
