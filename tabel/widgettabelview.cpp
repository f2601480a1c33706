#include "tabel/widgettabelview.h"

#include "tabel/rangetip.h"
#include "tabel/widgettabel.h"

#include <QScrollBar>

WidgetTabelView::WidgetTabelView(QWidget* parent)
    : QScrollArea(parent), m_content(new WidgetTabel(this))
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_content->setPaddingLeft(0);
    m_content->setPaddingTop(0);
    setWidget(m_content);
    // Its menu has texts of Qt, which nobody may have translated.
    verticalScrollBar()->setContextMenuPolicy(Qt::PreventContextMenu);
    new RangeTip(viewport());
}

void WidgetTabelView::addWidget(QWidget* widget)
{
    m_content->addWidget(widget, true);
}

void WidgetTabelView::addWidgetLayout(WidgetLayout* layout)
{
    m_content->addWidgetLayout(layout, true);
}

void WidgetTabelView::changeHidden(const std::function<void()>& work)
{
    m_content->hide();
    work();
    fit();
    m_content->show();
}

void WidgetTabelView::clearAll()
{
    changeHidden([this] { m_content->deleteAll(); });
}

void WidgetTabelView::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    fit();
}

void WidgetTabelView::fit()
{
    layOut(viewport()->width());
    // The bar comes by the event loop. While nothing shows it is cheaper to leave it its place.
    // After a load that needed the bar it stands there still, and the viewport is without it.
    if (!isOverfull() || m_content->isVisible() || verticalScrollBar()->isVisibleTo(this))
        return;
    layOut(viewport()->width() - verticalScrollBar()->sizeHint().width());
    if (!isOverfull())
        layOut(viewport()->width());
}

bool WidgetTabelView::isOverfull() const
{
    return m_content->height() > viewport()->height();
}

void WidgetTabelView::layOut(int width)
{
    // The rows give the height. Setting the view's first would hide the scroll bar for a moment,
    // which resizes the view again.
    const bool hasRows = !m_content->getVisibleItems().isEmpty();
    m_content->resize(width, hasRows ? m_content->height() : viewport()->height());
    m_content->relayout(0, 0);
}
