#include "draw/drawitemindex.h"

#include "draw/drawitem.h"

void DrawItemIndex::append(DrawItem* item)
{
    m_items.append(item);
    if (!m_valid)
        return;
    m_byItemId.add(item->itemId(), item);
    m_byDataId.add(item->dataId(), item);
}

void DrawItemIndex::remove(DrawItem* item)
{
    if (!m_items.removeOne(item) || !m_valid)
        return;
    m_byItemId.remove(item->itemId(), item);
    m_byDataId.remove(item->dataId(), item);
    m_valid = !m_byItemId.hasSharedIds(); // they may be gone now
}

void DrawItemIndex::clear()
{
    m_items.clear();
    m_byItemId.clear();
    m_byDataId.clear();
}

DrawItem* DrawItemIndex::byItemId(int itemId) const
{
    update();
    const DrawItemRange found = m_byItemId.find(itemId);
    return found.begin() == found.end() ? nullptr : found.begin()->item;
}

DrawItemRange DrawItemIndex::byDataId(int dataId) const
{
    update();
    return m_byDataId.find(dataId);
}

bool DrawItemIndex::hasSharedIds() const
{
    update();
    return m_byItemId.hasSharedIds();
}

void DrawItemIndex::update() const
{
    if (m_valid)
        return;
    m_byItemId.fill(m_items, &DrawItem::itemId);
    m_byDataId.fill(m_items, &DrawItem::dataId);
    m_valid = true;
}
