#include "draw/crosstestdraw.h"

#include "draw/figurepainter.h"

CrossTestDraw::CrossTestDraw() : BaseDraw(BaseDrawType::None, 4, 4) {}

void CrossTestDraw::paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
                          const std::optional<QPoint>& canvasMovePoint) const
{
    const QVector<QPoint> known = withMovePoint(canvasPoints, canvasMovePoint);
    painter.line({known[0], known[1]});
    if (known.size() >= 4)
        painter.line({known[2], known[3]});
}
