#pragma once

#include "Protocol/datatemplate.h"
#include "host/json/fwd.h"

#include <QStringList>
#include <map>
#include <memory>
#include <vector>

class RuleData;

/**
 * Finds what a save changes or drops of a configuration, by comparing the two: so nothing is
 * overlooked, and a document that is saved as it was read has nothing to tell. What is added, and
 * what attributes convert, is no loss.
 */
class DocumentLoss
{
public:
    /// @p read is what @p scenes were read from, @p written what they are saved as.
    DocumentLoss(const std::vector<std::unique_ptr<RuleData>>& scenes, const kql::Json::Value& read,
                 const kql::Json::Value& written);

    /// Tells the scenes what their entries lose; returns sentences about the rest.
    QStringList tell();

private:
    struct Place {
        RuleData* data;
        TemplateSection section;
    };

    void compare(const kql::Json::Value& read, const kql::Json::Value& written,
                 const QString& path);
    void compareEntries(const Place& place, const kql::Json::Value& read);

    const std::vector<std::unique_ptr<RuleData>>& m_scenes;
    const kql::Json::Value& m_read;
    const kql::Json::Value& m_written;
    std::multimap<const kql::Json::Value*, Place> m_places; ///< by where entries were read
    QStringList m_sentences;
};
