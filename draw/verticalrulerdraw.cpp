#include "draw/verticalrulerdraw.h"

#include <QMutexLocker>

VerticalRulerDraw::VerticalRulerDraw() : RulerDraw(BaseDrawType::VerticalRuler) {}

bool VerticalRulerDraw::addPoint(int x, int y)
{
    const QMutexLocker lock(&mutex());
    if (points().size() >= 2)
        return true;
    return appendNormalizedPoint(points().isEmpty() ? normalized({x, y}) : inColumn(y));
}

void VerticalRulerDraw::setMovePoint(int, int y)
{
    const QMutexLocker lock(&mutex());
    if (points().size() == 1)
        storeNormalizedMovePoint(inColumn(y));
}

QPoint VerticalRulerDraw::inColumn(int canvasY) const
{
    // Taken over canvas pixels, the column would come out beside that of the first point.
    return {points().first().x(), normalized({0, canvasY}).y()};
}
