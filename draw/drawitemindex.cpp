#include "draw/drawitemindex.h"

#include "draw/drawitem.h"

void DrawItemIndex::append(DrawItem* item)
{
    m_items.append(item);
    if (m_valid)
        enter(item);
}

void DrawItemIndex::remove(DrawItem* item)
{
    if (!m_items.removeOne(item) || !m_valid)
        return;
    if (m_hasSharedIds) {
        m_valid = false;
        return;
    }
    m_byItemId.remove(item->itemId());
    const auto sameData = m_byDataId.find(item->dataId());
    sameData->removeOne(item);
    if (sameData->isEmpty())
        m_byDataId.erase(sameData);
}

void DrawItemIndex::clear()
{
    m_items.clear();
    rebuild();
}

DrawItem* DrawItemIndex::byItemId(int itemId) const
{
    update();
    return m_byItemId.value(itemId);
}

QList<DrawItem*> DrawItemIndex::byDataId(int dataId) const
{
    update();
    return m_byDataId.value(dataId);
}

void DrawItemIndex::enter(DrawItem* item) const
{
    if (m_byItemId.contains(item->itemId()))
        m_hasSharedIds = true;
    else
        m_byItemId.insert(item->itemId(), item);
    m_byDataId[item->dataId()].append(item);
}

void DrawItemIndex::update() const
{
    if (!m_valid)
        rebuild();
}

void DrawItemIndex::rebuild() const
{
    m_byItemId.clear();
    m_byDataId.clear();
    m_hasSharedIds = false;
    for (DrawItem* item : m_items)
        enter(item);
    m_valid = true;
}
