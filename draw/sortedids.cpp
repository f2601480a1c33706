#include "draw/sortedids.h"

#include "draw/drawitem.h"

#include <algorithm>

namespace
{

using Entry = DrawItemRange::Entry;

bool isBefore(const Entry& one, const Entry& other)
{
    return one.id < other.id;
}

bool haveSameId(const Entry& one, const Entry& other)
{
    return one.id == other.id;
}

} // namespace

void SortedIds::fill(const QList<DrawItem*>& items, Id id)
{
    m_entries.clear();
    m_entries.reserve(static_cast<std::size_t>(items.size()));
    for (DrawItem* item : items)
        m_entries.push_back({(item->*id)(), item});
    if (!std::is_sorted(m_entries.begin(), m_entries.end(), isBefore))
        std::stable_sort(m_entries.begin(), m_entries.end(), isBefore);
    m_hasSharedIds =
        std::adjacent_find(m_entries.begin(), m_entries.end(), haveSameId) != m_entries.end();
}

void SortedIds::add(int id, DrawItem* item)
{
    const Entry added{id, item};
    const auto place = std::upper_bound(m_entries.begin(), m_entries.end(), added, isBefore);
    m_hasSharedIds = m_hasSharedIds || (place != m_entries.begin() && (place - 1)->id == id);
    m_entries.insert(place, added);
}

void SortedIds::remove(int id, const DrawItem* item)
{
    const auto found =
        std::find_if(m_entries.begin() + static_cast<std::ptrdiff_t>(firstOf(id)), m_entries.end(),
                     [item](const Entry& entry) { return entry.item == item; });
    if (found != m_entries.end())
        m_entries.erase(found);
}

void SortedIds::clear()
{
    m_entries.clear();
    m_hasSharedIds = false;
}

DrawItemRange SortedIds::find(int id) const
{
    const std::size_t first = firstOf(id);
    m_next = first;
    while (m_next < m_entries.size() && m_entries[m_next].id == id)
        ++m_next;
    const Entry* const row = m_entries.data();
    return {row + first, row + m_next};
}

std::size_t SortedIds::firstOf(int id) const
{
    const std::size_t count = m_entries.size();
    const bool isNext = m_next < count && m_entries[m_next].id == id &&
                        (m_next == 0 || m_entries[m_next - 1].id < id);
    if (isNext)
        return m_next;
    const auto first =
        std::lower_bound(m_entries.begin(), m_entries.end(), Entry{id, nullptr}, isBefore);
    return static_cast<std::size_t>(first - m_entries.begin());
}
