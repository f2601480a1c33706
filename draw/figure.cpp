#include "draw/figure.h"

#include "draw/drawgeometry.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace
{

/// What a document says about points may lie anywhere.
QPoint movedBy(const QPoint& point, const QPoint& difference)
{
    const auto sum = [](qint64 a, qint64 b) {
        constexpr qint64 lowest = std::numeric_limits<int>::min();
        constexpr qint64 highest = std::numeric_limits<int>::max();
        return static_cast<int>(std::clamp(a + b, lowest, highest));
    };
    return {sum(point.x(), difference.x()), sum(point.y(), difference.y())};
}

} // namespace

Figure::Figure(BaseDrawType kind, const PointLimits& limits) : m_limits(limits), m_kind(kind) {}

std::optional<QPoint> Figure::pointAt(int index) const
{
    if (index < 0 || index >= m_points.size())
        return std::nullopt;
    return m_points[index];
}

bool Figure::addPoint(const QPoint& point)
{
    const bool taken = !m_finished && insertPoint(m_points.size(), point);
    m_finished = m_finished || m_points.size() >= m_limits.maximum;
    return taken;
}

bool Figure::setPoint(int index, const QPoint& point)
{
    if (!pointAt(index))
        return false;
    m_points[index] = point;
    // They stay where they are while they say the same.
    const QVector<QPoint> kept = m_directionPoints;
    if (kept.size() < 2 || m_points.size() < 2 ||
        DrawGeometry::directionAlong({m_points[0], m_points[1]}, {kept[0], kept[1]}) != m_direction)
        m_directionPoints.clear();
    return true;
}

bool Figure::insertPoint(int index, const QPoint& point)
{
    const int count = m_points.size();
    if (index < 0 || index > count || count >= m_limits.maximum)
        return false;
    m_points.insert(index, point);
    m_directionPoints.clear();
    return true;
}

bool Figure::removePoint(int index)
{
    if (!pointAt(index) || (m_finished && m_points.size() <= m_limits.minimum))
        return false;
    m_points.remove(index);
    m_directionPoints.clear();
    return true;
}

void Figure::setPoints(const QVector<QPoint>& points)
{
    m_points = points;
    m_directionPoints.clear();
}

void Figure::moveBy(const QPoint& difference)
{
    for (QPoint& point : m_points)
        point = movedBy(point, difference);
    for (QPoint& point : m_directionPoints)
        point = movedBy(point, difference);
}

QVector<QPoint> Figure::outline() const
{
    return m_points.size() < 2 ? QVector<QPoint>() : m_points + QVector<QPoint>{m_points.first()};
}

void Figure::setDirection(BaseDrawDirectionType direction)
{
    if (m_direction != direction)
        m_directionPoints.clear();
    m_direction = direction;
}

QVector<QPoint> Figure::directionPoints() const
{
    if (!m_directionPoints.isEmpty())
        return m_directionPoints;
    QVector<QPoint> midpoints = DrawGeometry::directionMidpoints(m_points);
    if (m_direction == BaseDrawDirectionType::RightToLeft)
        std::reverse(midpoints.begin(), midpoints.end());
    return midpoints;
}

void Figure::setDirectionPoints(const QVector<QPoint>& points)
{
    m_directionPoints = points;
    m_direction = BaseDrawDirectionType::LeftToRight;
    if (m_points.size() >= 2 && points.size() >= 2)
        m_direction =
            DrawGeometry::directionAlong({m_points[0], m_points[1]}, {points[0], points[1]});
}

bool Figure::operator==(const Figure& other) const
{
    const auto members = [](const Figure& figure) {
        return std::tie(figure.m_kind, figure.m_limits, figure.m_direction, figure.m_edgeLabelMode,
                        figure.m_finished, figure.m_points, figure.m_directionPoints,
                        figure.m_label);
    };
    return members(*this) == members(other);
}
