#include "draw/parallelogramdraw.h"

#include "draw/drawgeometry.h"
#include "draw/figurepainter.h"

#include <QMutexLocker>

ParallelogramDraw::ParallelogramDraw() : BaseDraw(BaseDrawType::Parallelogram, 4, 4) {}

bool ParallelogramDraw::addPoint(int x, int y)
{
    const QMutexLocker lock(&mutex());
    if (points().size() < 2)
        return appendCanvasPoint({x, y});
    if (points().size() > 2)
        return true;
    const QVector<QPoint> edge = canvasPointsLocked();
    const QVector<QPoint> rest =
        DrawGeometry::completeParallelogram(edge[0], edge[1], {x, y}, canvasSizeLocked());
    const bool refused = appendCanvasPoint(rest[0]);
    return appendCanvasPoint(rest[1]) || refused;
}

void ParallelogramDraw::paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
                              const std::optional<QPoint>& canvasMovePoint) const
{
    QVector<QPoint> outline = canvasPoints;
    if (canvasMovePoint && outline.size() == 1)
        outline.append(*canvasMovePoint);
    else if (canvasMovePoint && outline.size() == 2)
        outline += DrawGeometry::completeParallelogram(outline[0], outline[1], *canvasMovePoint,
                                                       canvasSizeLocked());
    painter.polyline(outline);
    if (outline.size() >= 4)
        painter.line({outline.last(), outline.first()});
    if (isFinishedLocked()) {
        painter.drawLabel(label(), {canvasPoints[0], canvasPoints[1]});
        paintDirection(painter, canvasPoints);
    }
}

void ParallelogramDraw::paintDirection(const FigurePainter& painter,
                                       const QVector<QPoint>& canvasPoints) const
{
    const QVector<QPoint> ends = DrawGeometry::directionMidpoints(canvasPoints);
    if (ends.isEmpty() || direction() == BaseDrawDirectionType::None)
        return;
    const QPoint center = DrawGeometry::middle(ends[0], ends[1]);
    const QPoint left = DrawGeometry::middle(ends[0], center);
    const QPoint right = DrawGeometry::middle(center, ends[1]);
    painter.line({left, right});
    if (direction() != BaseDrawDirectionType::RightToLeft)
        painter.arrowhead({left, right});
    if (direction() != BaseDrawDirectionType::LeftToRight)
        painter.arrowhead({right, left});
}
