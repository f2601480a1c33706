#pragma once

#include "host/json/value.h"

#include <QString>
#include <memory>
#include <vector>

class RuleParser;
class UnseenRows;
struct TemplateDocument;

/**
 * A template, and one configuration after another as the rules window has it after the load: with
 * the entry that the global section always has, lines turned as their entries say, the first entry
 * of each section current, and rows as they would show it. No figure is started.
 *
 * Of one thread; several may each have their own at the same time.
 */
class LoadedRules
{
public:
    explicit LoadedRules(const TemplateDocument& rulesTemplate);
    ~LoadedRules();
    LoadedRules(const LoadedRules&) = delete;
    LoadedRules& operator=(const LoadedRules&) = delete;

    /// Reads @p config in place of the last one, as it is: enough for a save of what was read.
    /// False, with nothing read and a sentence in @p why, where the window refuses it.
    bool read(kql::Json::Value config, QString& why);
    /// read(), and what the window makes of it when it shows it.
    bool load(kql::Json::Value config, QString& why);
    /// What the window makes of what was read, and changed since.
    void open();
    /// Gives unnamed rules the name that picking them would. What is saved then has it.
    void nameEntries();
    /// Gives all figures the labels that they have in the window.
    void labelFigures();

    RuleParser& parser() { return *m_parser; }
    const RuleParser& parser() const { return *m_parser; }

private:
    /// A document that is refused leaves nothing of the scenes that its template made.
    void readTemplate();

    kql::Json::Value m_template;
    std::unique_ptr<RuleParser> m_parser;
    std::vector<std::unique_ptr<UnseenRows>> m_rows; ///< of each scene
};
