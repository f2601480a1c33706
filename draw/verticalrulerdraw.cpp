#include "draw/verticalrulerdraw.h"

#include <QMutexLocker>

VerticalRulerDraw::VerticalRulerDraw() : RulerDraw(BaseDrawType::VerticalRuler) {}

bool VerticalRulerDraw::addPoint(int x, int y)
{
    const QMutexLocker lock(&mutex());
    if (points().size() >= 2)
        return true;
    const int column = points().isEmpty() ? x : canvasPointsLocked().first().x();
    return appendCanvasPoint({column, y});
}

void VerticalRulerDraw::setMovePoint(int, int y)
{
    const QMutexLocker lock(&mutex());
    if (points().size() == 1)
        storeMovePoint({canvasPointsLocked().first().x(), y});
}
