#include "draw/rectangledraw.h"

#include "draw/figurepainter.h"

RectangleDraw::RectangleDraw() : BaseDraw(BaseDrawType::Rectangle, 2, 2) {}

void RectangleDraw::paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
                          const std::optional<QPoint>& canvasMovePoint) const
{
    const QLine diagonal = firstSegment(canvasPoints, canvasMovePoint);
    painter.rectangle(diagonal.p1(), diagonal.p2());
}
