#pragma once

#include "host/json/fwd.h"

#include <QMap>
#include <QSet>
#include <QString>
#include <QVector>

class RuleData;
class RuleDataInfo;
class RuleProtocolItem;

/// Compares entries as they were read with what they are saved as, one after another.
class EntryLoss
{
public:
    /// Whether @p written has all that @p read has, in whatever order, and numbers by value.
    static bool isSame(const kql::Json::Value& read, const kql::Json::Value& written);
    /// The same of what attributes convert: a conversion says as much, and so does what has a list
    /// around it or none.
    static bool isKept(const kql::Json::Value& read, const kql::Json::Value& written);

    /// Of the items of @p data's template that belong to @p section. Nothing is owned.
    EntryLoss(RuleData& data, const QString& section);

    /// Tells the scene what @p entry loses.
    void compare(const RuleDataInfo& entry, const kql::Json::Value& read,
                 const kql::Json::Value& written);

private:
    using Items = QVector<const RuleProtocolItem*>;

    void tellMisfits(const kql::Json::Value& read, const kql::Json::Value& written);
    void compareMember(const QString& path, const kql::Json::Value& read,
                       const kql::Json::Value& written);
    void compareItems(const QString& path, const Items& items, const kql::Json::Value& read,
                      const kql::Json::Value& written);
    void tellItem(const RuleProtocolItem& item);
    void tellMember(const QString& path);

    RuleData& m_data;
    QMap<QString, Items> m_items; ///< by path, without brackets
    QSet<QString> m_stations;     ///< paths that those lead through
    const RuleDataInfo* m_entry = nullptr;
};
