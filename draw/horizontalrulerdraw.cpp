#include "draw/horizontalrulerdraw.h"

#include "draw/figurepainter.h"

HorizontalRulerDraw::HorizontalRulerDraw() : BaseDraw(BaseDrawType::HorizontalRuler, 2, 2) {}

void HorizontalRulerDraw::paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
                                const std::optional<QPoint>& canvasMovePoint) const
{
    const QLine width = firstSegment(canvasPoints, canvasMovePoint);
    painter.line(width);
    if (isFinishedLocked())
        painter.drawLabel(label(), width);
}
