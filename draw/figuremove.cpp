#include "draw/figuremove.h"

#include "draw/drawgeometry.h"
#include "draw/figurekinds.h"

#include <algorithm>

namespace
{

/// @p step, but no farther than a coordinate of @p value stays in the picture, or out of it no
/// farther than it is.
int stoppedStep(int step, int value)
{
    const qint64 back = std::min<qint64>(0, -qint64{value});
    const qint64 on = std::max<qint64>(0, qint64{DrawGeometry::kNormalizedExtent} - value);
    return static_cast<int>(qBound(back, qint64{step}, on));
}

} // namespace

FigureMove::FigureMove(const Figure& original, const Figure& start)
    : m_original(original), m_start(start)
{
}

FigureMove FigureMove::ofWhole(const Figure& figure)
{
    FigureMove move(figure, figure);
    move.m_isWhole = true;
    for (int i = 0; i < figure.pointCount(); ++i)
        move.m_moved.push_back({i, true, true});
    return move;
}

FigureMove FigureMove::ofCorner(const Figure& figure, int index)
{
    FigureMove move(figure, figure);
    switch (FigureKind::formOf(figure.kind())) {
    case FigureForm::Box:
        move.m_moved = {{0, index == 0 || index == 3, index == 0 || index == 1},
                        {1, index == 1 || index == 2, index == 2 || index == 3}};
        break;
    case FigureForm::UprightLine:
        move.m_moved = {{0, true, index == 0}, {1, true, index == 1}};
        break;
    case FigureForm::Parallelogram:
        move.m_moved = {{index, true, true}, {3 - index, true, true}};
        break;
    default:
        move.m_moved = {{index, true, true}};
        break;
    }
    const auto isNowhere = [&figure](const Coordinate& moved) {
        return !figure.pointAt(moved.index);
    };
    move.m_moved.erase(std::remove_if(move.m_moved.begin(), move.m_moved.end(), isNowhere),
                       move.m_moved.end());
    return move;
}

FigureMove FigureMove::ofNewCorner(const Figure& figure, int index)
{
    Figure start = figure;
    const std::optional<QPoint> from = figure.pointAt(index);
    const std::optional<QPoint> to = figure.pointAt((index + 1) % qMax(1, figure.pointCount()));
    if (from && to)
        start.insertPoint(index + 1, DrawGeometry::middle(*from, *to));
    FigureMove move(figure, start);
    if (start.pointCount() > figure.pointCount()) {
        move.m_newIndex = index + 1;
        move.m_moved = {{index + 1, true, true}};
    }
    return move;
}

Figure FigureMove::by(const QPoint& difference) const
{
    const QPoint step = stopped(difference);
    if (step.isNull())
        return m_original;
    Figure moved = m_start;
    if (m_isWhole) {
        moved.moveBy(step);
        return moved;
    }
    for (const Coordinate& coordinate : m_moved) {
        const QPoint at = *m_start.pointAt(coordinate.index);
        moved.setPoint(coordinate.index, {at.x() + (coordinate.isMovedX ? step.x() : 0),
                                          at.y() + (coordinate.isMovedY ? step.y() : 0)});
    }
    return moved;
}

bool FigureMove::carries(const Figure& area, const Figure& child)
{
    const QVector<QPoint>& ends = child.points();
    return area.edgeLabelMode() == EdgeLabelMode::LengthAndWidth && ends.size() == 2 &&
           std::all_of(ends.begin(), ends.end(),
                       [&area](const QPoint& end) { return area.points().contains(end); });
}

Figure FigureMove::carried(const Figure& child, const Figure& moved) const
{
    Figure along = child;
    for (int i = 0; i < child.pointCount(); ++i) {
        for (int corner = 0; corner < moved.pointCount(); ++corner) {
            if (m_original.pointAt(originOf(corner)) == child.points()[i])
                along.setPoint(i, moved.points()[corner]);
        }
    }
    return along;
}

int FigureMove::originOf(int index) const
{
    if (m_newIndex < 0 || index < m_newIndex)
        return index;
    return index == m_newIndex ? -1 : index - 1;
}

QPoint FigureMove::stopped(const QPoint& difference) const
{
    QPoint step = m_moved.empty() ? QPoint() : difference;
    for (const Coordinate& coordinate : m_moved) {
        const QPoint at = *m_start.pointAt(coordinate.index);
        if (coordinate.isMovedX)
            step.setX(stoppedStep(step.x(), at.x()));
        if (coordinate.isMovedY)
            step.setY(stoppedStep(step.y(), at.y()));
    }
    return step;
}
