#pragma once

#include "host/json/fwd.h"

#include <QString>

class JsonPath;
class RuleProtocolItem;

/// A place in an entry, in the one form of all spellings that lead there.
struct EntryPlace {
    QString field; ///< the path without the brackets at its end
    int index;     ///< in the list that the field is; -1 for the field as a whole

    /// Where @p item leads in entries like @p prototype: its index counts where there is a list or,
    /// in the place of null, will be one.
    static EntryPlace of(const RuleProtocolItem& item, const kql::Json::Value& prototype);
    /// The same of a path without an index.
    static EntryPlace of(const JsonPath& path, const kql::Json::Value& prototype);
    /// The field that @p path names.
    static QString fieldOf(const QString& path);

    bool operator==(const EntryPlace& other) const
    {
        return index == other.index && field == other.field;
    }
    bool operator<(const EntryPlace& other) const
    {
        return index != other.index ? index < other.index : field < other.field;
    }
};
