#pragma once

#include "tools/rulesctl/diff/configdiff.h"
#include "tools/rulesctl/documents/loadedrules.h"

/// One configuration after another as a save writes it. Of one thread, as LoadedRules.
class SavedConfig
{
public:
    explicit SavedConfig(const TemplateDocument& rulesTemplate);

    /// Takes @p config, which has @p pointer in its document, in place of the last one. False, with
    /// a sentence in @p why, where the window refuses it or a save would not write it; nothing else
    /// may be asked for then.
    bool take(kql::Json::Value config, const QString& pointer, QString& why);
    /// Good until the next one is taken.
    ComparedConfig compared() const;
    const kql::Json::Value& written() const { return m_written; }
    /// What is written, as a window has it.
    LoadedRules& writtenRules() { return m_writtenRules; }

private:
    kql::Json::Value m_config;
    QString m_pointer;
    LoadedRules m_rules;
    kql::Json::Value m_written;
    LoadedRules m_writtenRules;
};
