#include "draw/verticalrulerdraw.h"

#include "draw/canvasfigure.h"
#include "draw/figurepainter.h"

QVector<QPoint> VerticalRulerDraw::clicked(const CanvasFigure& drawn,
                                           const QPoint& canvasPoint) const
{
    if (drawn.points().isEmpty())
        return BaseDraw::clicked(drawn, canvasPoint);
    QPoint second = drawn.normalized(canvasPoint);
    return moved(drawn.figure(), second) ? QVector<QPoint>{second} : QVector<QPoint>();
}

bool VerticalRulerDraw::moved(const Figure& figure, QPoint& end) const
{
    if (figure.pointCount() != 1)
        return false;
    // Taken over canvas pixels, the column would come out beside that of the first point.
    end.setX(figure.points().first().x());
    return true;
}

void VerticalRulerDraw::paint(const FigurePainter& painter, const CanvasFigure& shown) const
{
    painter.staff(shown);
}
