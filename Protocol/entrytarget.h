#pragma once

#include "Protocol/jsonpath.h"
#include "host/json/value.h"

#include <vector>

/**
 * The place of a scene's entries in the document being written: a list of them, or an object
 * that is the only one.
 */
class EntryTarget
{
public:
    enum class WhenMissing { List, Object };

    /// @p document holds the skeleton and must outlive the target.
    EntryTarget(kql::Json::Value& document, const QString& parent,
                WhenMissing whenMissing = WhenMissing::List);

    /// What the skeleton has at the place; null when there is nothing.
    const kql::Json::Value* skeleton() const { return m_path.find(m_document); }
    /// The skeleton's first entry, which every entry starts as; null when it has none.
    const kql::Json::Value* prototype() const { return m_path.firstEntryIn(m_document); }

    /// Puts the entries there, the first alone where an object is the only entry. A missing
    /// place is made; false when that cannot be done and entries would be lost.
    bool put(std::vector<kql::Json::Value> entries);
    /// Puts the only entry there without a list around it; false as above.
    bool putAlone(kql::Json::Value entry);

private:
    bool replace(kql::Json::Value value);

    kql::Json::Value& m_document;
    JsonPath m_path;
    WhenMissing m_whenMissing;
};
