#pragma once

#include "Protocol/ruledata.h"

class LanesTemplate;

/// The lanes scene's data; makes its own template.
class LanesData : public RuleData
{
public:
    LanesData();
    /// Null when a template of another kind was put in its place.
    LanesTemplate* lanesTemplate() const;

    /// Names of the rules that belong to no lane, and that a save keeps as they are.
    const QStringList& otherRuleNames() const { return m_otherRuleNames; }
    void setOtherRuleNames(const QStringList& names) { m_otherRuleNames = names; }

private:
    QStringList m_otherRuleNames;
};
