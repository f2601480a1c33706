#pragma once

#include "host/json/value.h"

#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <memory>
#include <vector>

/// One entry of a scene: a rule, a lane, an area. Holds the values of the control items by key.
class RuleDataInfo
{
public:
    explicit RuleDataInfo(int id = 0) : m_id(id) {}

    /// Same id, content and source; values of different types differ.
    bool operator==(const RuleDataInfo& other) const;

    int id() const { return m_id; }
    void setId(int id) { m_id = id; }
    /// Name as the device has it; empty for a new entry.
    const QString& name() const { return m_name; }
    void setName(const QString& name);
    /// Enabled state; in selection mode, whether the entry is selected.
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled);
    bool isSelected() const { return m_enabled; }

    /// Position in the configuration's list that the entry was read from; -1 for a new one.
    int sourceIndex() const { return m_sourceIndex; }
    void setSourceIndex(int index) { m_sourceIndex = index; }

    /// What stands for the place that a copy from another configuration was read from; null for
    /// other entries.
    const kql::Json::Value* source() const { return m_source.get(); }
    void setSource(kql::Json::Value json);

    void setValue(const QString& key, const QVariant& value);
    /// The value under @p key; invalid when there is none.
    QVariant value(const QString& key) const;
    bool hasValue(const QString& key) const;

    /// Keeps what the configuration has under @p key, because the value does not say all of it.
    /// Forgotten when another value is set.
    void keepAsRead(const QString& key, const kql::Json::Value& json);
    void keepNameAsRead(const kql::Json::Value& json);
    void keepEnabledAsRead(const kql::Json::Value& json);
    /// What was kept of it; null when nothing was. Good until the entry changes.
    const kql::Json::Value* asRead(const QString& key) const;
    const kql::Json::Value* nameAsRead() const;
    const kql::Json::Value* enabledAsRead() const;
    bool keepsAnything() const { return !m_kept.isEmpty(); }
    /// Whether what was kept under @p key is such that no row can show it. What merely is spelled
    /// in another way, such as 1 for a switch that is on, is shown.
    bool isMisfit(const QString& key) const;

    /// Whether the attribute applies; true for keys without a flag.
    bool isValid(const QString& key) const;
    void setValid(const QString& key, bool valid);

private:
    struct KeyedValue {
        QString key;
        QVariant value;

        bool operator==(const KeyedValue& other) const
        {
            return key == other.key && value.userType() == other.value.userType() &&
                   value == other.value;
        }
    };
    /// What is kept as it was read: an attribute by its key, or what every rule has besides.
    enum class Member { Attribute, Name, Enabled };
    using MemberKey = QPair<Member, QString>;

    const QVariant* find(const QString& key) const;
    const kql::Json::Value* kept(Member member, const QString& key = {}) const;
    void forget(Member member, const QString& key = {});

    std::vector<KeyedValue> m_values; ///< by key; there are many entries with many of them
    QStringList m_invalid;            ///< keys of the attributes that do not apply, sorted
    QMap<MemberKey, kql::Json::Value> m_kept;
    std::shared_ptr<const kql::Json::Value> m_source; ///< which no copy of this one changes
    QString m_name;
    int m_id;
    int m_sourceIndex = -1;
    bool m_enabled = true;
};
