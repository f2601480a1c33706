#include "draw/directiondraw.h"

#include "draw/figurepainter.h"

DirectionDraw::DirectionDraw() : BaseDraw(BaseDrawType::Direction, 2, 2) {}

void DirectionDraw::paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
                          const std::optional<QPoint>& canvasMovePoint) const
{
    const QLine course = firstSegment(canvasPoints, canvasMovePoint);
    painter.line(course);
    painter.arrowhead(course);
}
