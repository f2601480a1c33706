#include "tabel/widgettabel.h"

#include "tabel/titlelabel.h"

#include <QChildEvent>
#include <QScopedValueRollback>

WidgetTabel::WidgetTabel(QWidget* parent) : WidgetLayout(parent), m_title(new TitleLabel(this))
{
    setAttribute(Qt::WA_StyledBackground);
    m_title->setObjectName(QStringLiteral("title"));
    m_title->setFixedSize(80, 30);
    m_title->hide();
}

void WidgetTabel::setFixCountLimit(int min, int max)
{
    change(m_fixCountMin, min);
    change(m_fixCountMax, max);
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
    if (!widget || contains(widget))
        return;
    widget->setParent(this);
    insert(widget, false, relayoutNow);
}

void WidgetTabel::addWidgetLayout(WidgetLayout* layout, bool relayoutNow)
{
    if (!layout || contains(layout))
        return;
    layout->setParent(this);
    layout->setVisible(true);
    insert(layout, true, relayoutNow);
}

void WidgetTabel::insert(QWidget* widget, bool isLayout, bool relayoutNow)
{
    m_items.append(widget);
    m_itemInfo.insert(widget, {isLayout, !widget->isHidden(), widget->geometry()});
    m_childrenEnabled.reset();
    m_laidOutSize = QSize();
    outdate();
    widget->installEventFilter(this);
    if (relayoutNow)
        relayout(0, 0);
}

void WidgetTabel::removeWidget(QWidget* widget)
{
    if (!contains(widget))
        return;
    widget->removeEventFilter(this);
    widget->disconnect(this);
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
    pauseLayout();
    while (!m_items.isEmpty())
        deleteWidget(m_items.first());
    resumeLayout();
}

void WidgetTabel::forgetWidget(const QObject* child)
{
    const auto found = std::find(m_items.begin(), m_items.end(), child);
    if (found == m_items.end())
        return;
    m_itemInfo.remove(child);
    m_items.erase(found);
    outdate();
}

void WidgetTabel::setControlEnable(bool enable)
{
    storeControlEnable(enable);
    // Children of a disabled table do not tell when they are set otherwise.
    if (isEnabled() && m_childrenEnabled == enable)
        return;
    for (QWidget* item : qAsConst(m_items))
        item->setEnabled(enable);
    m_childrenEnabled.reset();
    if (isEnabled())
        m_childrenEnabled = enable;
}

QList<QWidget*> WidgetTabel::getVisibleItems() const
{
    QList<QWidget*> visible;
    visible.reserve(m_items.size());
    std::copy_if(m_items.begin(), m_items.end(), std::back_inserter(visible),
                 [](const QWidget* item) { return !item->isHidden(); });
    return visible;
}

void WidgetTabel::resumeLayout()
{
    if (--m_holds > 0 || !m_layoutPending)
        return;
    m_layoutPending = false;
    relayout(0, 0);
}

void WidgetTabel::relayout(int x, int y)
{
    if (WidgetTabel* held = holder()) {
        outdate();
        held->m_layoutPending = true;
        return;
    }
    if (m_layingOut || isLaidOut(startOf(x, y)))
        return;
    const QScopedValueRollback<bool> guard(m_layingOut, true);
    m_outdated = !hearsOfChanges();
    const int widthBefore = width();
    layoutPass(x, y);
    if (width() != widthBefore || hasDrifted()) {
        layoutPass(x, y);
        m_outdated = m_outdated || hasDrifted();
    }
    m_laidOutSize = size();
    m_laidOutStart = startOf(x, y);
    m_laidOutTitle = titlePlace();
}

bool WidgetTabel::isLaidOut(const QPoint& start) const
{
    return !m_outdated && m_laidOutSize == size() && m_laidOutStart == start &&
           m_laidOutTitle == titlePlace();
}

bool WidgetTabel::hearsOfChanges() const
{
    const auto isSilent = [](const QWidget* item, const ItemInfo& info) {
        return info.isLayout && !qobject_cast<const WidgetTabel*>(item);
    };
    return isVisible() && std::none_of(m_items.begin(), m_items.end(), [&](const QWidget* item) {
               return isSilent(item, m_itemInfo[item]);
           });
}

void WidgetTabel::outdate()
{
    for (WidgetTabel* table = this; table; table = table->outerTable())
        table->m_outdated = true;
}

/// The table that lays this one out as a part of itself; null for none.
WidgetTabel* WidgetTabel::outerTable() const
{
    auto* outer = qobject_cast<WidgetTabel*>(parentWidget());
    const bool laysOut = outer && outer->m_itemType == ItemSizeType::ItemFixCount &&
                         outer->m_fixCountMax > 0 && outer->m_itemInfo.value(this).isLayout;
    return laysOut ? outer : nullptr;
}

/// The innermost table with a hold that this one is laid out with; null for none.
WidgetTabel* WidgetTabel::holder()
{
    WidgetTabel* table = this;
    while (table && table->m_holds == 0)
        table = table->outerTable();
    return table;
}

QPoint WidgetTabel::startOf(int x, int y) const
{
    if (x == 0)
        x = showsTitle() ? m_paddingLeft + m_title->width() + m_spacing : m_paddingLeft;
    return {x, y == 0 ? m_paddingTop : y};
}

bool WidgetTabel::showsTitle() const
{
    return !m_title->text().isEmpty() && !m_title->isHidden();
}

QRect WidgetTabel::titlePlace() const
{
    return showsTitle() ? m_title->geometry() : QRect();
}

void WidgetTabel::setHeight(int height)
{
    if (height != this->height())
        resize(width(), height);
}

void WidgetTabel::layoutPass(int x, int y)
{
    const QPoint start = startOf(x, y);
    const QList<QWidget*> visible = getVisibleItems();
    if (!visible.isEmpty()) {
        if (m_itemType == ItemSizeType::ItemFixCount && m_fixCountMax <= 0)
            return;
        setHeight(placeAll(visible, start) + m_paddingTop);
    }
    if (showsTitle())
        placeTitle(visible, start.y());
}

int WidgetTabel::placeAll(const QList<QWidget*>& visible, const QPoint& start)
{
    if (m_itemType == ItemSizeType::ItemFixCount)
        return placeFixCount(visible, start.x(), start.y());
    if (m_itemType == ItemSizeType::ItemFlow)
        return placeFlow(visible, start.x(), start.y());
    return placeFixSize(visible, start.x(), start.y());
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
    const QSize cell = cellSize(visible, x);
    const int columns = fixSizeColumns(x, cell.width());
    for (int i = 0; i <= last; ++i) {
        QWidget* child = visible[i];
        if (child->size() != cell)
            child->resize(cell);
        const int column = i % columns;
        if (i != 0 && column == 0)
            y += m_spacing;
        placeChild(child, x + column * (cell.width() + m_spacing), y);
        if (column == columns - 1 || i == last)
            y += cell.height();
    }
    return y;
}

int WidgetTabel::fixSizeColumns(int x, int cellWidth) const
{
    const auto needed = [this, x, cellWidth](int count) {
        return x + cellWidth * (count + 1) + m_spacing * count + m_paddingLeft;
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
        setHeight(y + m_title->height() + m_paddingTop);
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
    info->geometry = QRect(QPoint(x, y), child->size());
    // Qt has the panel's opaque area found anew even for a move to where the child is.
    if (child->pos() != info->geometry.topLeft())
        child->move(x, y);
}

bool WidgetTabel::hasDrifted() const
{
    return std::any_of(m_items.begin(), m_items.end(), [this](const QWidget* item) {
        return !item->isHidden() && m_itemInfo[item].geometry.size() != item->size();
    });
}

bool WidgetTabel::eventFilter(QObject* watched, QEvent* event)
{
    const auto info = m_itemInfo.find(watched);
    if (info != m_itemInfo.end())
        childChanged(*static_cast<const QWidget*>(watched), *info, event->type());
    return WidgetLayout::eventFilter(watched, event);
}

void WidgetTabel::childChanged(const QWidget& child, ItemInfo& info, QEvent::Type type)
{
    // Children of a hidden table get only the two events about their own flag.
    const bool isAboutShowing = type == QEvent::Show || type == QEvent::ShowToParent ||
                                type == QEvent::Hide || type == QEvent::HideToParent;
    const bool isToggled = isAboutShowing && info.visible == child.isHidden();
    const bool isMoved = type == QEvent::Move && info.geometry.topLeft() != child.pos();
    // A layout in progress sees for itself what came of it.
    const bool isResized =
        type == QEvent::Resize && !m_layingOut && info.geometry.size() != child.size();
    if (type == QEvent::EnabledChange)
        m_childrenEnabled.reset();
    if (isToggled)
        info.visible = !child.isHidden();
    if (isToggled || isMoved || isResized)
        outdate();
    if (isToggled || isResized)
        relayout(0, 0);
}

void WidgetTabel::resizeEvent(QResizeEvent* event)
{
    WidgetLayout::resizeEvent(event);
    // The event may come late, on the first show, for a size that is laid out already.
    if (size() != m_laidOutSize)
        relayout(0, 0);
}

void WidgetTabel::hideEvent(QHideEvent* event)
{
    WidgetLayout::hideEvent(event);
    m_outdated = true;
}

void WidgetTabel::changeEvent(QEvent* event)
{
    WidgetLayout::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        outdate();
}

void WidgetTabel::childEvent(QChildEvent* event)
{
    WidgetLayout::childEvent(event);
    if (!event->removed() || !contains(event->child()))
        return;
    event->child()->removeEventFilter(this);
    forgetWidget(event->child());
    relayout(0, 0);
}
