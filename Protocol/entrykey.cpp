#include "Protocol/entrykey.h"

int EntryKey::slotIn(const RuleDataInfo& entry) const
{
    if (m_common != entry.m_common) {
        m_common = entry.m_common;
        m_slot = entry.find(m_key);
    }
    return m_slot;
}
