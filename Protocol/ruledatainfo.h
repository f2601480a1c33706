#pragma once

#include <QString>
#include <QVariant>
#include <vector>

namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/// One entry of a scene: a rule, a lane, an area. Holds the values of the control items by key.
class RuleDataInfo
{
public:
    explicit RuleDataInfo(int id = 0) : m_id(id) {}

    int id() const { return m_id; }
    /// Only before the entry is added to a scene, which finds its entries by id.
    void setId(int id) { m_id = id; }
    /// Name as the device has it; empty for a new entry.
    const QString& name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }
    /// Enabled state; in selection mode, whether the entry is selected.
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }
    bool isSelected() const { return m_enabled; }

    /// Position in the configuration's list that the entry was read from; -1 for a new one.
    int sourceIndex() const { return m_sourceIndex; }
    void setSourceIndex(int index) { m_sourceIndex = index; }

    void setValue(const QString& key, const QVariant& value);
    /// The value under @p key; invalid when there is none.
    QVariant value(const QString& key) const;
    bool hasValue(const QString& key) const;

    /// Whether the attribute applies; true for keys without a flag.
    bool isValid(const QString& key) const;
    void setValid(const QString& key, bool valid);

private:
    struct Slot {
        QString key;
        QVariant value;
        bool hasValue = false;
        bool valid = true;
    };
    const Slot* find(const QString& key) const;
    Slot& slotFor(const QString& key);

    std::vector<Slot> m_slots; ///< sorted by key
    QString m_name;
    int m_id;
    int m_sourceIndex = -1;
    bool m_enabled = true;
};
