#pragma once

#include "host/json/value.h"

#include <QBitArray>
#include <QExplicitlySharedDataPointer>
#include <QMap>
#include <QString>
#include <QVariant>
#include <QVector>
#include <optional>
#include <vector>

class EntryKey;

/**
 * One entry of a scene: a rule, a lane, an area. Holds the values of the control items by key.
 *
 * The entries of a scene share what they have in common; each holds only the values that differ,
 * so that many entries with many attributes take no more memory than their documents do.
 */
class RuleDataInfo
{
public:
    explicit RuleDataInfo(int id = 0) : m_id(id), m_sourceIndex(-1), m_enabled(true) {}

    int id() const { return m_id; }
    /// Only before the entry is added to a scene, which finds its entries by id.
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

    void setValue(const QString& key, const QVariant& value);
    void setValue(const EntryKey& key, const QVariant& value);
    /// The value under @p key; invalid when there is none.
    QVariant value(const QString& key) const;
    /// As above; good until the entry changes.
    const QVariant& value(const EntryKey& key) const;
    bool hasValue(const QString& key) const;

    /// Keeps what the configuration has under @p key, because the value does not say all of it.
    /// Forgotten when another value is set.
    void keepAsRead(const EntryKey& key, const kql::Json::Value& json);
    void keepNameAsRead(const kql::Json::Value& json) { keepAt(kNameSlot, json); }
    void keepEnabledAsRead(const kql::Json::Value& json) { keepAt(kEnabledSlot, json); }
    /// What was kept of it; null when nothing was. Good until the entry changes.
    const kql::Json::Value* asRead(const QString& key) const;
    const kql::Json::Value* asRead(const EntryKey& key) const;
    bool keepsAnything() const { return !m_kept.isEmpty(); }
    const kql::Json::Value* nameAsRead() const { return keptAt(kNameSlot); }
    const kql::Json::Value* enabledAsRead() const { return keptAt(kEnabledSlot); }

    /// Whether the attribute applies; true for keys without a flag.
    bool isValid(const QString& key) const;
    bool isValid(const EntryKey& key) const;
    void setValid(const QString& key, bool valid);

    /// Makes all values that this entry has common to it and its copies.
    void shareValues();
    /// Puts the common values of @p other, whose keys begin with this entry's, in the place of
    /// this entry's. Its own ones stay, and room is made for @p more of them.
    void takeCommonValues(const RuleDataInfo& other, int more);
    /// Shares the flags of @p other where they are the same.
    void shareFlags(const RuleDataInfo& other);

private:
    friend class EntryKey;

    /// Keys have slots, counted from 0, and there the value of entries without one of their own.
    struct Common : QSharedData {
        QMap<QString, int> slotOf;
        std::vector<std::optional<QVariant>> values;
    };
    struct OwnValue {
        QVariant value;
        int slot;
    };
    using OwnValues = std::vector<OwnValue>;
    struct Kept {
        kql::Json::Value json;
        int slot;
    };
    using Keeps = QVector<Kept>;
    // What every rule has besides its attributes is kept as if it had a key.
    static constexpr int kNameSlot = -2;
    static constexpr int kEnabledSlot = -3;

    int find(const QString& key) const;
    int findOrAdd(const QString& key);
    OwnValues::const_iterator ownFrom(int slot) const;
    const QVariant* findAt(int slot) const;
    void setAt(int slot, const QVariant& value);
    bool isValidAt(int slot) const;
    void keepAt(int slot, const kql::Json::Value& json);
    const kql::Json::Value* keptAt(int slot) const;
    void forgetAt(int slot);
    Keeps::const_iterator keptFrom(int slot) const;

    QExplicitlySharedDataPointer<Common> m_common; ///< null until there is a key
    OwnValues m_own;                               ///< by slot
    QBitArray m_invalid;                           ///< by slot; what is behind its end is valid
    Keeps m_kept;                                  ///< by slot; seldom more than none
    QString m_name;
    int m_id;
    // Share a word: there are many entries, and no document has room for 2^30 of them.
    int m_sourceIndex : 31;
    bool m_enabled : 1;
};
