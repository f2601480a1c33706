#pragma once

#include "Protocol/ruledatainfo.h"

/// A key that is looked up in many entries. It remembers where the last one had it, which is
/// where the next one of the same scene has it, too.
class EntryKey
{
public:
    explicit EntryKey(const QString& key) : m_key(key) {}

    const QString& text() const { return m_key; }

private:
    friend class RuleDataInfo;

    int slotIn(const RuleDataInfo& entry) const;

    QString m_key;
    mutable QExplicitlySharedDataPointer<RuleDataInfo::Common> m_common; ///< of the last entry
    mutable int m_slot = -1;
};
