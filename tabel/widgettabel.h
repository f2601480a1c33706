#pragma once

#include "tabel/iteminfo.h"
#include "tabel/itemsizetype.h"
#include "tabel/widgetlayout.h"

#include <QHash>
#include <QList>
#include <QSize>

class TitleLabel;

/**
 * A container that places its visible children itself, in one of three modes, with an optional
 * title at the left. It lays out again when a child is shown, hidden or resized; a child counts
 * as visible while it is not hidden itself, whether or not the table shows.
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
    /// more by itself when a child's size changed behind it.
    void relayout(int x, int y) override;
    /// Takes @p widget out and hides it; it stays a child. Nothing for widgets not in the table.
    virtual void removeWidget(QWidget* widget);
    /// Enables or disables every child in the table, hidden ones too.
    virtual void setControlEnable(bool enable);
    /// The value last given to setControlEnable().
    virtual bool getControlEnable() const { return m_controlEnable; }
    /// Whether the table holds nothing; hidden children count as present.
    virtual bool isEmpty() const { return m_items.isEmpty(); }

    // These store only; the caller lays out when it is done.
    void setItemType(ItemSizeType type);
    void setFixCountLimit(int min, int max);
    void setPaddingLeft(int padding);
    void setPaddingTop(int padding);
    void setItemSize(const QSize& size);

    /// Shows the title when @p title is not empty; never hides it again.
    void setTitle(const QString& title);
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

    // LayoutHold's calls; they nest.
    void holdLayout();
    void releaseLayout();

protected:
    /// Drops a child from the bookkeeping. @p child may be half destroyed: compare, never call.
    virtual void forgetWidget(const QObject* child);

    /// For rows that enable less than all of their children.
    void storeControlEnable(bool enable) { m_controlEnable = enable; }

    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void childEvent(QChildEvent* event) override;

    int paddingLeft() const { return m_paddingLeft; }
    /// Where the first column starts: the margin, behind the title where there is one.
    int startX() const;

private:
    void insert(QWidget* widget, bool isLayout, bool relayoutNow);
    bool showsTitle() const;
    void layoutPass(int x, int y);
    int placeFixCount(const QList<QWidget*>& visible, int x, int y);
    int placeFlow(const QList<QWidget*>& visible, int x, int y);
    int placeFixSize(const QList<QWidget*>& visible, int x, int y);
    int fixSizeColumns(int x) const;
    void placeTitle(const QList<QWidget*>& visible, int y);
    void placeChild(QWidget* child, int x, int y);
    bool hasDrifted() const;
    void childResized(QWidget* child);
    void childVisibilityChanged(QWidget* child);

    ItemSizeType m_itemType = ItemSizeType::ItemFixCount;
    QList<QWidget*> m_items;
    QHash<QWidget*, ItemInfo> m_itemInfo;
    int m_paddingLeft = 10;
    int m_paddingTop = 10;
    int m_spacing = 5;
    int m_fixCountMin = 1;
    int m_fixCountMax = 1;
    QSize m_itemSize{70, 30};
    TitleLabel* m_title;
    bool m_controlEnable = true;
    bool m_layingOut = false;
    bool m_layoutPending = false; ///< asked for while held
    int m_holds = 0;
    QSize m_laidOutSize; ///< own size after the last layout; invalid when that is outdated
};
