#include "draw/verticalrulerdraw.h"

#include "draw/canvasfigure.h"

QVector<QPoint> VerticalRulerDraw::clicked(const CanvasFigure& drawn,
                                           const QPoint& canvasPoint) const
{
    if (drawn.points().isEmpty())
        return BaseDraw::clicked(drawn, canvasPoint);
    const std::optional<QPoint> second = moved(drawn.figure(), drawn.normalized(canvasPoint));
    return second ? QVector<QPoint>{*second} : QVector<QPoint>();
}

std::optional<QPoint> VerticalRulerDraw::moved(const Figure& figure, const QPoint& mouse) const
{
    if (figure.pointCount() != 1)
        return std::nullopt;
    // Taken over canvas pixels, the column would come out beside that of the first point.
    return QPoint(figure.points().first().x(), mouse.y());
}
