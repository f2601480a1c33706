#pragma once

#include "Protocol/datatemplate.h"
#include "Protocol/jsonpath.h"
#include "tools/rulesctl/lint/valuechanges.h"

#include <map>
#include <string>

class RuleData;
class RuleParser;

/**
 * Where the entries of a configuration went when it was saved: they are matched by what they were
 * read as, not by their position, so that one that is gone does not make all behind it another.
 */
class SavedEntries
{
public:
    /// Of the scenes of @p parser, which @p read was read into and @p written is the save of.
    SavedEntries(const RuleParser& parser, const kql::Json::Value& read,
                 const kql::Json::Value& written);

    /// Compares the entries that are read at @p place, by @p changes, and tells those that are gone
    /// or in another order; false where none are read there.
    bool compare(const kql::Json::Value& place, const std::string& pointer,
                 const ValueChanges& changes, const ValueChanges::Tell& tell) const;

private:
    struct Section {
        const RuleData* data;
        TemplateSection section;
    };

    std::map<const kql::Json::Value*, std::size_t> positions(const Section& section) const;

    const kql::Json::Value& m_read;
    const kql::Json::Value& m_written;
    std::map<const kql::Json::Value*, Section> m_sections; ///< by the place that entries are at
};
