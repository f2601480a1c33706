#include "draw/parallelogramdraw.h"

#include "draw/canvasfigure.h"
#include "draw/drawgeometry.h"
#include "draw/figurepainter.h"

/// The last click adds two corners.
int ParallelogramDraw::clicksNeeded() const
{
    return qMax(0, BaseDraw::clicksNeeded() - 1);
}

QVector<QPoint> ParallelogramDraw::clicked(const CanvasFigure& drawn,
                                           const QPoint& canvasPoint) const
{
    const QVector<QPoint>& edge = drawn.points();
    if (edge.size() < 2)
        return BaseDraw::clicked(drawn, canvasPoint);
    if (edge.size() > 2)
        return {};
    const QVector<QPoint> rest =
        DrawGeometry::completeParallelogram(edge[0], edge[1], canvasPoint, drawn.canvasSize());
    return {drawn.normalized(rest[0]), drawn.normalized(rest[1])};
}

void ParallelogramDraw::paint(const FigurePainter& painter, const CanvasFigure& shown) const
{
    QVector<QPoint> corners = shown.points();
    if (shown.movePoint() && corners.size() == 1)
        corners.append(*shown.movePoint());
    else if (shown.movePoint() && corners.size() == 2)
        corners += DrawGeometry::completeParallelogram(corners[0], corners[1], *shown.movePoint(),
                                                       shown.canvasSize());
    painter.polyline(corners);
    if (corners.size() >= 4)
        painter.line({corners.last(), corners.first()});
    painter.name(shown);
    if (shown.figure().isFinished())
        paintDirection(painter, shown);
}

void ParallelogramDraw::paintDirection(const FigurePainter& painter, const CanvasFigure& shown)
{
    const BaseDrawDirectionType direction = shown.figure().direction();
    const QVector<QPoint> ends = DrawGeometry::directionMidpoints(shown.points());
    if (ends.isEmpty() || direction == BaseDrawDirectionType::None)
        return;
    const QPoint center = DrawGeometry::middle(ends[0], ends[1]);
    const QPoint left = DrawGeometry::middle(ends[0], center);
    const QPoint right = DrawGeometry::middle(center, ends[1]);
    painter.line({left, right});
    if (direction != BaseDrawDirectionType::RightToLeft)
        painter.arrowhead({left, right});
    if (direction != BaseDrawDirectionType::LeftToRight)
        painter.arrowhead({right, left});
}
