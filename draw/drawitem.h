#pragma once

#include "draw/figure.h"

#include <QHash>
#include <forward_list>
#include <memory>
#include <vector>

class BaseDraw;
class DrawItem;
namespace Gdiplus
{
class Graphics;
}

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
    /// An item listened to has got another item id or data id.
    virtual void itemIdsChanged() = 0;

protected:
    DrawItemListener() = default;
    ~DrawItemListener() = default;
};

/**
 * One figure's place on the canvas: its item id, the data entry that it belongs to, the rule
 * about where it may be drawn, and its children (figures inside it), which it owns.
 */
class DrawItem
{
public:
    /// A new item with a process-wide item id of its own (from 1) and a figure of kind @p type.
    explicit DrawItem(BaseDrawType type);
    ~DrawItem();
    DrawItem(const DrawItem&) = delete;
    DrawItem& operator=(const DrawItem&) = delete;

    /// A copy of figure, tags and children with item ids of its own, no parent and no rubber
    /// bands. @p copies gets the copy of each item in it.
    std::unique_ptr<DrawItem> clone(QHash<const DrawItem*, DrawItem*>& copies) const;

    int itemId() const { return m_itemId; }
    void setItemId(int id);
    int dataId() const { return m_dataId; }
    void setDataId(int id);
    /// Key of the template item that the figure was read or drawn for; empty when unknown.
    const QString& templateKey() const { return m_templateKey; }
    void setTemplateKey(const QString& key) { m_templateKey = key; }
    /// Position in the document's list that the figure was read from; -1 for a drawn one.
    int sourceIndex() const { return m_sourceIndex; }
    void setSourceIndex(int index) { m_sourceIndex = index; }
    DrawItemForbidenAreaType forbidenAreaType() const { return m_forbidenAreaType; }
    void setForbidenAreaType(DrawItemForbidenAreaType type) { m_forbidenAreaType = type; }

    DrawItem* parent() const { return m_parent; }
    BaseDraw* figure() const { return m_figure.get(); }
    const std::vector<std::unique_ptr<DrawItem>>& children() const { return m_children; }

    /// Takes @p child in: it gets this item's canvas size, data id and this item as its parent.
    /// Returns it; null for null.
    DrawItem* addChild(std::unique_ptr<DrawItem> child);
    /// Deletes the direct child with that id; nothing when there is none.
    void removeChild(int itemId);
    /// This item or a direct child by item id; null when neither has it.
    DrawItem* findItem(int itemId);
    /// This item when its figure is selected, else the first selected one below it; else null.
    DrawItem* selectedItem();

    /// Puts a figure of another kind in the place of this item's. Ignored without a figure; the
    /// replaced one lives on as long as the item, for those that still hold it.
    void replaceFigure(BaseDrawType type);

    /// Whom to tell about this item's children, ids and end; null for nobody.
    void setListener(DrawItemListener* listener) { m_listener = listener; }

    /// Sets how many points the figure takes. A negative maximum sets no upper limit on polygons
    /// and direction lines and the kind's own one on others, a negative minimum the kind's own.
    void setPointLimits(int minimum, int maximum);
    /// Sets the canvas size in pixels for this item and all below it.
    void setCanvasSize(int width, int height);

    // State of the figure; None, false or empty without one.
    Figure value() const;
    BaseDrawType drawType() const { return value().kind(); }
    bool isFinished() const { return value().isFinished(); }
    bool isSelected() const;
    bool isDrawOver() const;
    QString label() const { return value().label(); }
    void setLabel(const QString& label);
    void setDirection(BaseDrawDirectionType direction);
    /// The figure's points in normalized space.
    QVector<QPoint> getPoints() const;
    void draw(Gdiplus::Graphics* graphics) const;

    /// Selects the figure when this item has @p itemId, else unselects it; children are not
    /// visited. @p finished tells whether the selected figure is finished.
    bool selectById(int itemId, bool* finished = nullptr);

private:
    std::vector<std::unique_ptr<DrawItem>> m_children;
    DrawItem* m_parent = nullptr;           ///< not owned
    DrawItemListener* m_listener = nullptr; ///< not owned
    std::shared_ptr<BaseDraw> m_figure;
    std::forward_list<std::shared_ptr<BaseDraw>> m_replacedFigures;
    QString m_templateKey;
    DrawItemForbidenAreaType m_forbidenAreaType = DrawItemForbidenAreaType::ForbidenNone;
    int m_itemId;
    int m_dataId = 0;
    int m_sourceIndex = -1;
};
