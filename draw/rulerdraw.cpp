#include "draw/rulerdraw.h"

#include "draw/figurepainter.h"

RulerDraw::RulerDraw() : RulerDraw(BaseDrawType::Ruler) {}

RulerDraw::RulerDraw(BaseDrawType type) : BaseDraw(type, 2, 2) {}

void RulerDraw::paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
                      const std::optional<QPoint>& canvasMovePoint) const
{
    const QLine staff = firstSegment(canvasPoints, canvasMovePoint);
    painter.line(staff);
    painter.tick(staff.p1(), staff);
    painter.tick(staff.p2(), staff);
    if (isFinishedLocked())
        painter.drawLabel(label(), staff);
}
