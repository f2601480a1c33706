#pragma once

#include <QHash>
#include <QList>

class DrawItem;

/// A list of items in the order added, which finds them by item id and by data id without a walk.
/// Owns none of them.
class DrawItemIndex
{
public:
    void append(DrawItem* item);
    void remove(DrawItem* item);
    void clear();
    /// To be called after the ids of a listed item changed.
    void invalidate() { m_valid = false; }

    const QList<DrawItem*>& all() const { return m_items; }
    /// The first item with that item id; null when there is none.
    DrawItem* byItemId(int itemId) const;
    QList<DrawItem*> byDataId(int dataId) const;

private:
    void enter(DrawItem* item) const;
    void update() const;
    void rebuild() const;

    QList<DrawItem*> m_items;
    mutable QHash<int, DrawItem*> m_byItemId;
    mutable QHash<int, QList<DrawItem*>> m_byDataId;
    mutable bool m_hasSharedIds = false; ///< two items have the same item id
    mutable bool m_valid = true;
};
