#pragma once

#include "host/json/fwd.h"

#include <QString>
#include <string>
#include <vector>

using JsonEntries = std::vector<const kql::Json::Value*>;

/**
 * Place of a value in a configuration: member names joined by ".", each optionally followed by
 * "[]". A part with "[]" that is not the last goes on in the array's first element; the last part
 * names the member itself, the whole array when it ends in "[]".
 *
 * Split once, so that reading many entries costs no text work.
 */
class JsonPath
{
public:
    struct Part {
        std::string name; ///< UTF-8, without "[]"
        bool isArray = false;
    };

    JsonPath() = default;
    explicit JsonPath(const QString& text);

    const QString& text() const { return m_text; }
    const std::vector<Part>& parts() const { return m_parts; }
    /// One part without "[]".
    bool isPlainName() const;

    /// The value at this path below @p root; null when a part is missing, which is logged.
    const kql::Json::Value* readPath(const kql::Json::Value& root) const;
    kql::Json::Value* readPath(kql::Json::Value& root) const;
    /// As readPath(), without logging.
    const kql::Json::Value* find(const kql::Json::Value& root) const;
    kql::Json::Value* find(kql::Json::Value& root) const;

    /// Makes every missing or null member of the path below @p root: arrays for "[]", holding
    /// one object where the path goes on. A member that the path would have to go on in, but
    /// that is of another kind, stays as it is; null then, and for a path of more parts than a
    /// document may be deep.
    kql::Json::Value* create(kql::Json::Value& root) const;

    /// What @p root lists at this path, without logging when there is nothing.
    JsonEntries entriesIn(const kql::Json::Value& root) const;
    /// The first of that, if it is an object; else null.
    const kql::Json::Value* firstEntryIn(const kql::Json::Value& root) const;

private:
    QString m_text;
    std::vector<Part> m_parts;
};

/// The entries that a configuration lists at a place: the elements of an array, or an object as the
/// only entry; else none. @p place may be null.
JsonEntries getJsonItemList(const kql::Json::Value* place);

/// The object at @p index in @p entries; null outside and for other kinds.
const kql::Json::Value* objectAt(const JsonEntries& entries, int index);
