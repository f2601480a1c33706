#pragma once

#include "tools/rulesctl/diff/change.h"

#include <vector>

class RuleData;
class RuleParser;

/// A configuration as it is compared. Nothing is owned.
struct ComparedConfig {
    const kql::Json::Value& read;    ///< as it is in its file
    QString pointer;                 ///< of that in the file's document
    const RuleParser& readScenes;    ///< what a window has of that
    const kql::Json::Value& written; ///< as a save writes it
    const RuleParser& writtenScenes; ///< what a window has of that
};

/**
 * Compares two configurations of one template as a save writes them. What only the files have is
 * told, too, but makes no difference.
 */
class ConfigDiff
{
public:
    ConfigDiff(const ComparedConfig& a, const ComparedConfig& b);

    /// By sections as a window shows them, then the rest.
    const std::vector<Change>& changes() const { return m_changes; }
    /// Whether a save writes the same of both.
    bool isSame() const { return m_isSame; }

private:
    void compareScene(std::size_t scene);
    void compareRest();

    ComparedConfig m_a;
    ComparedConfig m_b;
    std::vector<Change> m_changes;
    bool m_isSame = true;
};
