#include "draw/directionlinedraw.h"

#include "draw/drawgeometry.h"
#include "draw/figurepainter.h"

#include <QMutexLocker>

namespace
{

void paintArrow(const FigurePainter& painter, const QLine& segment, BaseDrawDirectionType direction)
{
    switch (direction) {
    case BaseDrawDirectionType::None:
        break;
    case BaseDrawDirectionType::RightToLeft:
        painter.drawArrow(segment, false);
        break;
    case BaseDrawDirectionType::LeftToRight:
        painter.drawArrow({segment.p2(), segment.p1()}, false);
        break;
    case BaseDrawDirectionType::Both:
        painter.drawArrow(segment, true);
        break;
    }
}

} // namespace

DirectionLineDraw::DirectionLineDraw() : BaseDraw(BaseDrawType::DirectionLine, 2, 2) {}

bool DirectionLineDraw::addPoint(int x, int y)
{
    const QMutexLocker lock(&mutex());
    if (!DrawGeometry::newEdgeCrossings(points(), normalized({x, y})).isEmpty())
        return true;
    return appendCanvasPoint({x, y});
}

void DirectionLineDraw::paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
                              const std::optional<QPoint>& canvasMovePoint) const
{
    painter.polyline(canvasPoints);
    for (int i = 0; i + 1 < canvasPoints.size(); ++i)
        paintArrow(painter, {canvasPoints[i], canvasPoints[i + 1]}, direction());
    if (canvasMovePoint)
        painter.rubberBand({canvasPoints.last(), *canvasMovePoint},
                           DrawGeometry::newEdgeCrossings(canvasPoints, *canvasMovePoint));
    if (isFinishedLocked())
        painter.drawLabel(label(), {canvasPoints[0], canvasPoints[1]});
}
