#include "tabel/widgettabel.h"

#include "tabel/layouthold.h"
#include "tabel/titlelabel.h"

#include <QChildEvent>
#include <QScopedValueRollback>
#include <algorithm>

WidgetTabel::WidgetTabel(QWidget* parent) : WidgetLayout(parent), m_title(new TitleLabel(this))
{
    setAttribute(Qt::WA_StyledBackground);
    m_title->setObjectName(QStringLiteral("title"));
    m_title->setFixedSize(80, 30);
    m_title->hide();
}

void WidgetTabel::setItemType(ItemSizeType type)
{
    m_itemType = type;
    m_laidOutSize = QSize();
}

void WidgetTabel::setFixCountLimit(int min, int max)
{
    m_fixCountMin = min;
    m_fixCountMax = max;
    m_laidOutSize = QSize();
}

void WidgetTabel::setPaddingLeft(int padding)
{
    m_paddingLeft = padding;
    m_laidOutSize = QSize();
}

void WidgetTabel::setPaddingTop(int padding)
{
    m_paddingTop = padding;
    m_laidOutSize = QSize();
}

void WidgetTabel::setItemSize(const QSize& size)
{
    m_itemSize = size;
    m_laidOutSize = QSize();
}

void WidgetTabel::setTitle(const QString& title)
{
    m_title->setTitle(title);
    if (!title.isEmpty())
        m_title->show();
    relayout(0, 0);
}

void WidgetTabel::addWidget(QWidget* widget, bool relayoutNow)
{
    if (!widget || m_itemInfo.contains(widget))
        return;
    widget->setParent(this);
    insert(widget, false, relayoutNow);
}

void WidgetTabel::addWidgetLayout(WidgetLayout* layout, bool relayoutNow)
{
    if (!layout || m_itemInfo.contains(layout))
        return;
    layout->setParent(this);
    layout->setVisible(true);
    insert(layout, true, relayoutNow);
}

void WidgetTabel::insert(QWidget* widget, bool isLayout, bool relayoutNow)
{
    m_items.append(widget);
    m_itemInfo.insert(widget, {isLayout, !widget->isHidden(), widget->geometry()});
    m_laidOutSize = QSize();
    widget->installEventFilter(this);
    if (relayoutNow)
        relayout(0, 0);
}

void WidgetTabel::removeWidget(QWidget* widget)
{
    if (!m_itemInfo.contains(widget))
        return;
    widget->removeEventFilter(this);
    forgetWidget(widget);
    widget->hide();
    relayout(0, 0);
}

void WidgetTabel::deleteWidget(QWidget* widget)
{
    if (!widget)
        return;
    removeWidget(widget);
    widget->setObjectName(QString());
    widget->deleteLater();
}

void WidgetTabel::deleteAll()
{
    const LayoutHold hold(this);
    while (!m_items.isEmpty())
        deleteWidget(m_items.first());
}

void WidgetTabel::forgetWidget(const QObject* child)
{
    const auto found = std::find(m_items.begin(), m_items.end(), child);
    if (found == m_items.end())
        return;
    m_itemInfo.remove(*found);
    m_items.erase(found);
}

void WidgetTabel::setControlEnable(bool enable)
{
    storeControlEnable(enable);
    for (QWidget* item : qAsConst(m_items))
        item->setEnabled(enable);
}

QList<QWidget*> WidgetTabel::getVisibleItems() const
{
    QList<QWidget*> visible;
    visible.reserve(m_items.size());
    std::copy_if(m_items.begin(), m_items.end(), std::back_inserter(visible),
                 [](const QWidget* item) { return !item->isHidden(); });
    return visible;
}

void WidgetTabel::holdLayout()
{
    ++m_holds;
}

void WidgetTabel::releaseLayout()
{
    if (--m_holds > 0 || !m_layoutPending)
        return;
    m_layoutPending = false;
    relayout(0, 0);
}

void WidgetTabel::relayout(int x, int y)
{
    if (m_holds > 0) {
        m_layoutPending = true;
        return;
    }
    if (m_layingOut)
        return;
    const QScopedValueRollback<bool> guard(m_layingOut, true);
    layoutPass(x, y);
    if (hasDrifted())
        layoutPass(x, y);
    m_laidOutSize = size();
}

int WidgetTabel::startX() const
{
    return showsTitle() ? m_paddingLeft + m_title->width() + m_spacing : m_paddingLeft;
}

bool WidgetTabel::showsTitle() const
{
    return !m_title->text().isEmpty() && !m_title->isHidden();
}

void WidgetTabel::layoutPass(int x, int y)
{
    if (x == 0)
        x = startX();
    if (y == 0)
        y = m_paddingTop;
    const QList<QWidget*> visible = getVisibleItems();
    if (!visible.isEmpty()) {
        if (m_itemType == ItemSizeType::ItemFixCount && m_fixCountMax <= 0)
            return;
        int bottom = y;
        if (m_itemType == ItemSizeType::ItemFixCount)
            bottom = placeFixCount(visible, x, y);
        else if (m_itemType == ItemSizeType::ItemFlow)
            bottom = placeFlow(visible, x, y);
        else
            bottom = placeFixSize(visible, x, y);
        resize(width(), bottom + m_paddingTop);
    }
    if (showsTitle())
        placeTitle(visible, y);
}

int WidgetTabel::placeFixCount(const QList<QWidget*>& visible, int x, int y)
{
    const int columns = m_fixCountMax;
    int columnWidth = (width() - x - m_paddingLeft - (columns - 1) * m_spacing) / columns;
    if (columnWidth < 0)
        columnWidth = visible.first()->width();
    int rowHeight = 0;
    for (int i = 0; i < visible.size(); ++i) {
        QWidget* child = visible[i];
        const auto info = m_itemInfo.constFind(child);
        if (info == m_itemInfo.constEnd())
            continue;
        child->setFixedWidth(columnWidth);
        if (info->isLayout)
            static_cast<WidgetLayout*>(child)->relayout(0, 0);
        // Each child adds the gap, so that the columns of one row step down.
        if (i != 0)
            y += m_spacing;
        const int column = i % columns;
        rowHeight = column == 0 ? child->height() : qMax(rowHeight, child->height());
        placeChild(child, x + column * (columnWidth + m_spacing), y);
        if (column == columns - 1)
            y += rowHeight;
    }
    return y;
}

int WidgetTabel::placeFlow(const QList<QWidget*>& visible, int x, int y)
{
    const int last = visible.size() - 1;
    int row = 0;
    int column = 0;
    int rowHeight = 0;
    int rowEnd = x;
    for (int i = 0; i <= last; ++i) {
        QWidget* child = visible[i];
        if (column > 0 && rowEnd + child->width() >= width()) {
            // A wrap for lack of width moves down by the gap only, over the row above.
            ++row;
            column = 0;
        }
        if (column == 0) {
            if (row > 0)
                y += m_spacing;
            rowHeight = child->height();
            rowEnd = x;
        }
        placeChild(child, rowEnd, y);
        rowEnd += child->width() + m_spacing;
        if (column != m_fixCountMax - 1 && i != last) {
            ++column;
        } else {
            y += rowHeight;
            column = 0;
        }
    }
    return y;
}

int WidgetTabel::placeFixSize(const QList<QWidget*>& visible, int x, int y)
{
    const int last = visible.size() - 1;
    const int columns = fixSizeColumns(x);
    for (int i = 0; i <= last; ++i) {
        QWidget* child = visible[i];
        child->resize(m_itemSize);
        const int column = i % columns;
        if (i != 0 && column == 0)
            y += m_spacing;
        placeChild(child, x + column * (m_itemSize.width() + m_spacing), y);
        if (column == columns - 1 || i == last)
            y += m_itemSize.height();
    }
    return y;
}

int WidgetTabel::fixSizeColumns(int x) const
{
    const auto needed = [this, x](int count) {
        return x + m_itemSize.width() * (count + 1) + m_spacing * count + m_paddingLeft;
    };
    int columns = 0;
    while (columns < m_fixCountMax && needed(columns) < width())
        ++columns;
    columns = qMin(qMax(columns, m_fixCountMin), m_fixCountMax);
    return qMax(1, columns);
}

void WidgetTabel::placeTitle(const QList<QWidget*>& visible, int y)
{
    if (visible.isEmpty()) {
        resize(width(), y + m_title->height() + m_paddingTop);
        m_title->move(m_paddingLeft, m_paddingTop);
        return;
    }
    const QWidget* first = visible.first();
    m_title->move(m_paddingLeft, first->y() + (first->height() - m_title->height()) / 2);
}

void WidgetTabel::placeChild(QWidget* child, int x, int y)
{
    const auto info = m_itemInfo.find(child);
    if (info == m_itemInfo.end())
        return;
    // Qt has the panel's opaque area found anew even for a move to where the child is.
    if (child->pos() != QPoint(x, y))
        child->move(x, y);
    info->geometry = child->geometry();
}

bool WidgetTabel::hasDrifted() const
{
    return std::any_of(m_items.begin(), m_items.end(), [this](QWidget* item) {
        return !item->isHidden() && m_itemInfo.value(item).geometry.size() != item->size();
    });
}

bool WidgetTabel::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Resize:
        childResized(static_cast<QWidget*>(watched));
        break;
    // Children of a hidden table get only the two events about their own flag.
    case QEvent::Show:
    case QEvent::ShowToParent:
    case QEvent::Hide:
    case QEvent::HideToParent:
        childVisibilityChanged(static_cast<QWidget*>(watched));
        break;
    default:
        break;
    }
    return WidgetLayout::eventFilter(watched, event);
}

void WidgetTabel::childResized(QWidget* child)
{
    const auto info = m_itemInfo.constFind(child);
    if (info != m_itemInfo.constEnd() && info->geometry.size() != child->size())
        relayout(0, 0);
}

void WidgetTabel::childVisibilityChanged(QWidget* child)
{
    const auto info = m_itemInfo.find(child);
    if (info == m_itemInfo.end() || info->visible == !child->isHidden())
        return;
    info->visible = !child->isHidden();
    relayout(0, 0);
}

void WidgetTabel::resizeEvent(QResizeEvent* event)
{
    WidgetLayout::resizeEvent(event);
    // The event may come late, on the first show, for a size that is laid out already.
    if (size() != m_laidOutSize)
        relayout(0, 0);
}

void WidgetTabel::childEvent(QChildEvent* event)
{
    WidgetLayout::childEvent(event);
    if (!event->removed())
        return;
    const int count = m_items.size();
    event->child()->removeEventFilter(this);
    forgetWidget(event->child());
    if (m_items.size() != count)
        relayout(0, 0);
}
