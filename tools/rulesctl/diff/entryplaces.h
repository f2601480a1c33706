#pragma once

#include "host/json/fwd.h"
#include "tools/rulesctl/diff/othermembers.h"

#include <QString>
#include <vector>

class RuleData;
struct TemplateSection;

/// Where a document has what one section of a scene consists of.
struct EntryPlaces {
    struct Place {
        const kql::Json::Value* json; ///< null where the entry has nothing there
        QString pointer;
    };
    std::vector<Place> entries; ///< of each entry of the scene
    std::vector<Place> rest;    ///< what lies between them and is no entry

    /// @p data was read from @p document, which must outlive the result and has @p pointer.
    static EntryPlaces of(const RuleData& data, const TemplateSection& section,
                          const kql::Json::Value& document, const QString& pointer);

    /// What attributes name in an entry of @p section, with sections that lie inside of it.
    static NamedPaths namedIn(const RuleData& data, const TemplateSection& section,
                              const QStringList& parents);
};
