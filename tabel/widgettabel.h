#pragma once

#include "tabel/widgetlayout.h"

#include <QEvent>
#include <QHash>
#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <algorithm>
#include <optional>

class TitleLabel;

/// How a table arranges its children.
enum class ItemSizeType : int {
    ItemFixCount = 0, ///< columns of equal width
    ItemFlow = 1,     ///< one after the other, wrapping at the right edge
    ItemFixSize = 2,  ///< cells of one size, as many columns as fit
};

/// What a table remembers of a child, to tell its own changes from others'.
struct ItemInfo {
    bool isLayout = false; ///< a WidgetLayout, laid out again after its width is set
    bool visible = false;  ///< last seen own visibility, whatever the parents' is
    QRect geometry;        ///< as the table last gave it
};

/**
 * A container that places its visible children itself, in one of three modes, with an optional
 * title at the left. It lays out again when a child is shown, hidden or resized; a child counts
 * as visible while it is not hidden itself, whether or not the table shows.
 *
 * A table that shows hears of every change of what its layout depends on, and leaves a layout
 * that is still good alone. Children that do not show tell nothing, so a table that does not show
 * lays out whenever it is asked to.
 *
 * Children in the table are its Qt children. One that is destroyed or reparented elsewhere leaves
 * the table by itself.
 */
class WidgetTabel : public WidgetLayout
{
    Q_OBJECT

public:
    explicit WidgetTabel(QWidget* parent = nullptr);

    /// Asked for while a layout is in progress, it does nothing: the one in progress runs once
    /// more by itself when a child's size changed behind it. While the table that lays this one
    /// out is held, the layout waits for that one's.
    void relayout(int x, int y) override;
    /// Takes @p widget out and hides it; it stays a child. The table's own list of such widgets
    /// drops it, and nothing of it is heard any more. Nothing for widgets not in the table.
    virtual void removeWidget(QWidget* widget);
    /// Enables or disables every child in the table, hidden ones too.
    virtual void setControlEnable(bool enable);
    /// The value last given to setControlEnable().
    virtual bool getControlEnable() const { return m_controlEnable; }
    /// Whether the table holds nothing; hidden children count as present.
    virtual bool isEmpty() const { return m_items.isEmpty(); }

    // These store only; the caller lays out when it is done.
    void setItemType(ItemSizeType type) { change(m_itemType, type); }
    void setFixCountLimit(int min, int max);
    void setPaddingLeft(int padding) { change(m_paddingLeft, padding); }
    void setPaddingTop(int padding) { change(m_paddingTop, padding); }
    void setItemSize(const QSize& size) { change(m_itemSize, size); }

    /// Shows the title when @p title is not empty; never hides it again.
    virtual void setTitle(const QString& title);
    TitleLabel* titleLabel() const { return m_title; }

    /// Takes @p widget as a child and appends it; null and widgets already here are ignored.
    void addWidget(QWidget* widget, bool relayoutNow);
    /// As addWidget(), and makes @p layout visible.
    void addWidgetLayout(WidgetLayout* layout, bool relayoutNow);
    /// Removes and deletes later; the widget loses its object name at once.
    void deleteWidget(QWidget* widget);
    /// Deletes all children in the table, with one layout at the end.
    void deleteAll();

    const QList<QWidget*>& items() const { return m_items; }
    QList<QWidget*> getVisibleItems() const;

    // LayoutPause's calls; they nest.
    void pauseLayout() { ++m_holds; }
    void resumeLayout();

protected:
    bool contains(const QObject* child) const { return m_itemInfo.contains(child); }
    /// Drops a child in the table from the bookkeeping. @p child may be half destroyed: compare,
    /// never call.
    virtual void forgetWidget(const QObject* child);
    /// Drops it from a table's own list of some of its children.
    template<class Child>
    static void forgetIn(QList<Child*>& children, const QObject* child)
    {
        children.erase(std::remove(children.begin(), children.end(), child), children.end());
    }

    /// For rows that enable less than all of their children.
    void storeControlEnable(bool enable) { m_controlEnable = enable; }

    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void childEvent(QChildEvent* event) override;

    /// Size of the cells for @p visible, in mode ItemFixSize, with the first column at @p x.
    virtual QSize cellSize(const QList<QWidget*>& /*visible*/, int /*x*/) const
    {
        return m_itemSize;
    }
    int paddingLeft() const { return m_paddingLeft; }

private:
    template<class Value>
    void change(Value& setting, const Value& value)
    {
        if (setting == value)
            return;
        setting = value;
        m_laidOutSize = QSize();
        outdate();
    }

    void insert(QWidget* widget, bool isLayout, bool relayoutNow);
    void outdate();
    WidgetTabel* outerTable() const;
    WidgetTabel* holder();
    bool isLaidOut(const QPoint& start) const;
    bool hearsOfChanges() const;
    QPoint startOf(int x, int y) const;
    bool showsTitle() const;
    QRect titlePlace() const;
    void setHeight(int height);
    void layoutPass(int x, int y);
    int placeAll(const QList<QWidget*>& visible, const QPoint& start);
    int placeFixCount(const QList<QWidget*>& visible, int x, int y);
    int placeFlow(const QList<QWidget*>& visible, int x, int y);
    int placeFixSize(const QList<QWidget*>& visible, int x, int y);
    int fixSizeColumns(int x, int cellWidth) const;
    void placeTitle(const QList<QWidget*>& visible, int y);
    void placeChild(QWidget* child, int x, int y);
    bool hasDrifted() const;
    void childChanged(const QWidget& child, ItemInfo& info, QEvent::Type type);

    ItemSizeType m_itemType = ItemSizeType::ItemFixCount;
    QList<QWidget*> m_items;
    QHash<const QObject*, ItemInfo> m_itemInfo;
    int m_paddingLeft = 10;
    int m_paddingTop = 10;
    int m_spacing = 5;
    int m_fixCountMin = 1;
    int m_fixCountMax = 1;
    QSize m_itemSize{70, 30};
    TitleLabel* m_title;
    bool m_controlEnable = true;
    std::optional<bool> m_childrenEnabled; ///< what every child was set to; nothing if unsure
    bool m_layingOut = false;
    bool m_layoutPending = false; ///< asked for while held
    int m_holds = 0;

    // What the last layout was made for.
    bool m_outdated = true; ///< another one may come out differently
    QSize m_laidOutSize;    ///< own size after it; invalid when a setting changed since
    QPoint m_laidOutStart;
    QRect m_laidOutTitle; ///< null without a title
};
