#pragma once

class DrawItem;

/// Hears of changes in trees of items, so that lists of them never hold one that is gone.
class DrawItemListener
{
public:
    DrawItemListener(const DrawItemListener&) = delete;
    DrawItemListener& operator=(const DrawItemListener&) = delete;

    /// @p item became a child of an item listened to.
    virtual void itemAdded(DrawItem& item) = 0;
    /// @p item is being deleted; its figure and children still exist.
    virtual void itemGone(DrawItem& item) = 0;
    virtual void itemIdsChanged(DrawItem& item) = 0;

protected:
    DrawItemListener() = default;
    ~DrawItemListener() = default;
};
