#pragma once

#include "draw/drawitemrange.h"

#include <QList>

#include <cstddef>
#include <vector>

/**
 * Items by an id that several may share, of equal ids in the order added. They lie in one row:
 * new items mostly have the highest ids and are looked for in the order of their ids, so neither
 * needs a search.
 */
class SortedIds
{
public:
    using Id = int (DrawItem::*)() const;

    void fill(const QList<DrawItem*>& items, Id id);
    void add(int id, DrawItem* item);
    void remove(int id, const DrawItem* item);
    void clear();
    /// Good until the next change.
    DrawItemRange find(int id) const;
    /// Whether two items came with the same id, even when one is gone by now.
    bool hasSharedIds() const { return m_hasSharedIds; }

private:
    std::size_t firstOf(int id) const;

    std::vector<DrawItemRange::Entry> m_entries;
    mutable std::size_t m_next = 0; ///< behind what was found last
    bool m_hasSharedIds = false;
};
