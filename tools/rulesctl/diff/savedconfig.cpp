#include "tools/rulesctl/diff/savedconfig.h"

#include "Protocol/ruleparser.h"

using kql::Json::Value;

SavedConfig::SavedConfig(const TemplateDocument& rulesTemplate)
    : m_rules(rulesTemplate), m_writtenRules(rulesTemplate)
{
}

/// A window completes what it reads, as the global section, so that a save writes that, too.
bool SavedConfig::take(Value config, const QString& pointer, QString& why)
{
    m_config = std::move(config);
    m_pointer = pointer;
    if (!m_rules.load(m_config, why))
        return false;
    return m_rules.parser().writeData(m_written, why) && m_writtenRules.load(m_written, why);
}

ComparedConfig SavedConfig::compared() const
{
    return {m_config, m_pointer, m_rules.parser(), m_written, m_writtenRules.parser()};
}
