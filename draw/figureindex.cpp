#include "draw/figureindex.h"

#include "draw/basedraw.h"
#include "draw/canvasfigure.h"
#include "draw/drawitem.h"
#include "draw/figureshape.h"

#include <QPolygon>

namespace
{

/// A document's points may lie where no number of pixels can be added to them.
QRect withReach(const QRect& bounds)
{
    constexpr int reach = FigureShape::kReach;
    constexpr int outermost = 1 << 24;
    const QRect bounded(QPoint(qMax(bounds.left(), -outermost), qMax(bounds.top(), -outermost)),
                        QPoint(qMin(bounds.right(), outermost), qMin(bounds.bottom(), outermost)));
    return bounded.adjusted(-reach, -reach, reach, reach);
}

} // namespace

FigureIndex::FigureIndex(const QList<DrawItem*>& items)
{
    for (DrawItem* item : items) {
        if (!item->figure() || !item->isFinished())
            continue;
        const QRect bounds = QPolygon(item->figure()->canvasFigure().points()).boundingRect();
        m_places.push_back({withReach(bounds), item});
    }
}

QList<DrawItem*> FigureIndex::around(const QPoint& at) const
{
    QList<DrawItem*> found;
    for (auto place = m_places.rbegin(); place != m_places.rend(); ++place) {
        if (place->bounds.contains(at))
            found.append(place->item);
    }
    return found;
}

DrawItem* FigureIndex::under(const QPoint& at, const Wanted& isWanted, bool mustHold) const
{
    DrawItem* nearby = nullptr;
    const QList<DrawItem*> items = around(at);
    for (DrawItem* item : items) {
        if (!isWanted(*item))
            continue;
        const FigureShape shape(item->figure()->canvasFigure());
        if (shape.holds(at))
            return item;
        if (!mustHold && !nearby && shape.isNear(at))
            nearby = item;
    }
    return nearby;
}
