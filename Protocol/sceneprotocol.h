#pragma once

#include "Protocol/entrytarget.h"
#include "Protocol/jsonpath.h"
#include "host/json/value.h"

#include <QString>
#include <functional>
#include <memory>
#include <vector>

class DataTemplate;
class EntryWriter;
class RuleData;
class RuleDataInfo;
class RuleProtocolItem;
struct TemplateSection;

/// What writing takes besides the scene's data.
struct WriteContext {
    const kql::Json::Value& configuration; ///< as read; null when nothing was
    int algorithmId = 0;
    QString algorithmName; ///< each rule's "Config"."Type" when the id is 1
};

/**
 * How the entries of one type of scene lie in a configuration. There is one object a type, see
 * sceneProtocol(); it holds no data of its own. What reads a scene and what writes it mirror each
 * other: a document that is read and written stays as it is.
 */
class SceneProtocol
{
public:
    virtual ~SceneProtocol() = default;

    /// Adds an entry to @p data for each rule, lane or area that @p document has, and its figures
    /// to the canvas. Never fails: what is missing or of another kind is skipped.
    virtual void read(RuleData& data, const kql::Json::Value& document) const = 0;
    /// Writes what @p section of the scene's template names of the entries into @p document, the
    /// skeleton at first: an array's first element there is what each entry starts as. False when
    /// it has no place for them.
    virtual bool write(const RuleData& data, const TemplateSection& section,
                       const WriteContext& context, kql::Json::Value& document) const = 0;

    /// The entries that lie at @p place, which may be null.
    virtual JsonEntries entriesAt(const kql::Json::Value* place) const;
    /// For each entry of @p data what @p section has of it in @p document, from which it was read;
    /// null for new entries.
    virtual JsonEntries sources(const RuleData& data, const TemplateSection& section,
                                const kql::Json::Value& document) const;
    /// What lies between them, belongs to no entry of the scene and is saved as it was read.
    virtual JsonEntries keptAside(const RuleData& data, const TemplateSection& section,
                                  const kql::Json::Value& document) const;
    /// What is made for the entries where the skeleton has no place for them.
    virtual EntryTarget::WhenMissing whenMissing() const { return EntryTarget::WhenMissing::List; }
    /// What a copy of an entry takes along to other configurations of what the entry was read from,
    /// @p asRead, because attributes and figures do not say it; null for nothing.
    virtual kql::Json::Value copiedPart(const kql::Json::Value& asRead) const;
    /// Gives @p entry, a copy that is about to become the last of @p data, what no two entries of
    /// the scene may have in common.
    virtual void setApart(const RuleData& data, RuleDataInfo& entry) const;
    /// The item whose first figure stands for an entry; null when none does.
    virtual RuleProtocolItem* entryFigureItem(const DataTemplate& dataTemplate) const;
    /// Whether it is one of the calibrations: the module names their attributes itself, makes their
    /// places, and the configuration decides how many figures there are inside of an area.
    virtual bool isCalibration() const { return false; }

protected:
    using ReadEntry = std::function<void(const kql::Json::Value& json, RuleDataInfo& entry)>;
    using WriteEntry = std::function<void(const EntryWriter& writer, const RuleDataInfo& entry,
                                          const kql::Json::Value* asRead, kql::Json::Value& json)>;

    /// Has @p readEntry read one entry after another.
    void readEntries(RuleData& data, const kql::Json::Value& document,
                     const ReadEntry& readEntry) const;
    /// A new entry for @p json; null when there is none to be made of it.
    virtual std::unique_ptr<RuleDataInfo> newEntry(const RuleData& data,
                                                   const kql::Json::Value& json) const;

    /// Has @p writeEntry write one entry after another, each into a copy of the skeleton's first.
    std::vector<kql::Json::Value> writeEntries(const RuleData& data, const TemplateSection& section,
                                               const WriteContext& context,
                                               const kql::Json::Value& document,
                                               const WriteEntry& writeEntry) const;
    /// As above, of what the section's attributes say.
    std::vector<kql::Json::Value> writeEntries(const RuleData& data, const TemplateSection& section,
                                               const WriteContext& context,
                                               const kql::Json::Value& document) const;
    /// Puts the written entries into their place.
    bool put(std::vector<kql::Json::Value> entries, const TemplateSection& section,
             kql::Json::Value& document) const;
};
