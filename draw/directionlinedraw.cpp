#include "draw/directionlinedraw.h"

#include "draw/canvasfigure.h"
#include "draw/drawgeometry.h"
#include "draw/figurepainter.h"

namespace
{

void paintArrow(const FigurePainter& painter, const QLine& segment, BaseDrawDirectionType direction)
{
    if (direction == BaseDrawDirectionType::LeftToRight)
        painter.drawArrow({segment.p2(), segment.p1()}, false);
    else if (direction != BaseDrawDirectionType::None)
        painter.drawArrow(segment, direction == BaseDrawDirectionType::Both);
}

} // namespace

QVector<QPoint> DirectionLineDraw::clicked(const CanvasFigure& drawn,
                                           const QPoint& canvasPoint) const
{
    const QPoint next = drawn.normalized(canvasPoint);
    const auto crossings = DrawGeometry::newEdgeCrossings(drawn.figure().points(), next);
    return crossings.isEmpty() ? QVector<QPoint>{next} : QVector<QPoint>();
}

void DirectionLineDraw::paint(const FigurePainter& painter, const CanvasFigure& shown) const
{
    const QVector<QPoint>& points = shown.points();
    painter.polyline(points);
    for (int i = 0; i + 1 < points.size(); ++i)
        paintArrow(painter, {points[i], points[i + 1]}, shown.figure().direction());
    if (const std::optional<QPoint>& next = shown.movePoint())
        painter.rubberBand({points.last(), *next}, DrawGeometry::newEdgeCrossings(points, *next));
    painter.name(shown);
}
