#include "draw/figureshape.h"

#include "draw/canvasfigure.h"
#include "draw/drawgeometry.h"
#include "draw/figurekinds.h"

#include <algorithm>

namespace
{

QVector<QPoint> cornersOf(const QVector<QPoint>& points, FigureForm form)
{
    if (form != FigureForm::Box)
        return points;
    if (points.size() < 2)
        return {};
    const QPoint& first = points[0];
    const QPoint& second = points[1];
    return {first, {second.x(), first.y()}, second, {first.x(), second.y()}};
}

QVector<QLine> linesOf(const QVector<QPoint>& corners, FigureForm form)
{
    QVector<QLine> lines;
    const int step = form == FigureForm::TwoLines ? 2 : 1;
    for (int i = 0; i + 1 < corners.size(); i += step)
        lines.append({corners[i], corners[i + 1]});
    const bool isClosed =
        form == FigureForm::Ring || form == FigureForm::Parallelogram || form == FigureForm::Box;
    if (isClosed && corners.size() > 2)
        lines.append({corners.last(), corners.first()});
    return lines;
}

/// The ends of the lines as a ring that does not cross itself, whichever way the second one runs.
QPolygon betweenLines(const QVector<QPoint>& corners)
{
    if (corners.size() < 4)
        return {};
    const bool isAlong =
        DrawGeometry::directionAlong({corners[0], corners[1]}, {corners[2], corners[3]}) ==
        BaseDrawDirectionType::LeftToRight;
    return QPolygon(QVector<QPoint>{corners[0], corners[1], corners[isAlong ? 3 : 2],
                                    corners[isAlong ? 2 : 3]});
}

QPolygon areaOf(const QVector<QPoint>& corners, FigureForm form)
{
    switch (form) {
    case FigureForm::Ring:
    case FigureForm::Parallelogram:
    case FigureForm::Box:
        return QPolygon(corners);
    case FigureForm::TwoLines:
        return betweenLines(corners);
    default:
        return {};
    }
}

} // namespace

FigureShape::FigureShape(const CanvasFigure& figure)
{
    const FigureForm form = FigureKind::formOf(figure.figure().kind());
    m_corners = cornersOf(figure.points(), form);
    m_lines = linesOf(m_corners, form);
    m_area = areaOf(m_corners, form);
    const QRect bounds = m_area.boundingRect();
    m_isOnlyLines = form == FigureForm::TwoLines || bounds.left() == bounds.right() ||
                    bounds.top() == bounds.bottom() || m_area.isEmpty();
}

bool FigureShape::holds(const QPoint& at) const
{
    return m_area.containsPoint(at, Qt::OddEvenFill) || (m_isOnlyLines && isNearLine(at));
}

bool FigureShape::isNear(const QPoint& at) const
{
    return holds(at) || isNearLine(at);
}

bool FigureShape::isNearLine(const QPoint& at) const
{
    return std::any_of(m_lines.begin(), m_lines.end(), [&at](const QLine& line) {
        return DrawGeometry::distance(line, at) <= kReach;
    });
}
