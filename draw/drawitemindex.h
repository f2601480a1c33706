#pragma once

#include "draw/sortedids.h"

#include <QList>

class DrawItem;

/// A list of items in the order added, which finds them by item id and by data id without a walk.
/// Owns none of them. What it needs for that is made when an item is first looked for.
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
    /// In the order added; good until the list changes.
    DrawItemRange byDataId(int dataId) const;
    /// Whether two items have the same item id.
    bool hasSharedIds() const;

private:
    void update() const;

    QList<DrawItem*> m_items;
    mutable SortedIds m_byItemId;
    mutable SortedIds m_byDataId;
    mutable bool m_valid = false;
};
