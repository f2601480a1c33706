#include "draw/drawgeometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

// Devices compute angles with this pi; the same digits keep sides and arrows in agreement.
constexpr double kPi = 3.1415926;
constexpr double kHalfPi = 1.5707963;
// Above the rounding of a double in degrees, below any angle between points of the canvas.
constexpr double kSameDegrees = 1e-9;

int clampToInt(qint64 value)
{
    const int kept = static_cast<int>(value);
    if (kept == value)
        return kept;
    return value < 0 ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
}

std::optional<int> truncated(float value)
{
    if (!std::isfinite(value))
        return std::nullopt;
    constexpr double limit = std::numeric_limits<int>::max();
    return static_cast<int>(qBound(-limit, static_cast<double>(value), limit));
}

float deltaX(const QLine& line)
{
    return static_cast<float>(qint64{line.x2()} - line.x1());
}

float deltaY(const QLine& line)
{
    return static_cast<float>(qint64{line.y2()} - line.y1());
}

bool isInBounds(const QPoint& point, const QLine& line)
{
    const auto [left, right] = std::minmax({line.x1(), line.x2()});
    const auto [top, bottom] = std::minmax({line.y1(), line.y2()});
    return point.x() >= left && point.x() <= right && point.y() >= top && point.y() <= bottom;
}

/// One axis of a parallelogram's third and fourth vertex; @p back is p0 − p1 on that axis.
void placeOnAxis(qint64 click, qint64 back, int extent, int* third, int* fourth)
{
    const qint64 kept = qBound(qint64{0}, click + back, qint64{std::max(extent, 0)});
    *fourth = clampToInt(kept);
    *third = clampToInt(kept - back);
}

/// Twice the signed area of the triangle a, b, c; positive when it turns clockwise on screen.
double turn(const QPointF& a, const QPointF& b, const QPointF& c)
{
    return (b.x() - a.x()) * (c.y() - a.y()) - (b.y() - a.y()) * (c.x() - a.x());
}

/// -1, 0 or 1: the way in which the turn from @p line to @p point goes.
int turnOf(const QLine& line, const QPoint& point)
{
    const double turned = turn(line.p1(), line.p2(), point);
    return turned > 0 ? 1 : turned < 0 ? -1 : 0;
}

} // namespace

std::optional<QPoint> DrawGeometry::toNormalized(const QPoint& canvasPoint, const QSize& canvasSize)
{
    if (canvasSize.isEmpty())
        return std::nullopt;
    return QPoint(clampToInt(qint64{canvasPoint.x()} * kNormalizedExtent / canvasSize.width()),
                  clampToInt(qint64{canvasPoint.y()} * kNormalizedExtent / canvasSize.height()));
}

QPoint DrawGeometry::toCanvas(const QPoint& normalizedPoint, const QSize& canvasSize)
{
    return {clampToInt(qint64{normalizedPoint.x()} * canvasSize.width() / kNormalizedExtent),
            clampToInt(qint64{normalizedPoint.y()} * canvasSize.height() / kNormalizedExtent)};
}

std::optional<QPoint> DrawGeometry::segmentsCross(const QLine& a, const QLine& b)
{
    if (a.x1() == a.x2() || b.x1() == b.x2())
        return std::nullopt;
    const float slopeA = deltaY(a) / deltaX(a);
    const float slopeB = deltaY(b) / deltaX(b);
    if (slopeA == slopeB)
        return std::nullopt;
    const float interceptA = static_cast<float>(a.y1()) - slopeA * static_cast<float>(a.x1());
    const float interceptB = static_cast<float>(b.y1()) - slopeB * static_cast<float>(b.x1());
    const float crossX = (interceptB - interceptA) / (slopeA - slopeB);
    const std::optional<int> x = truncated(crossX);
    const std::optional<int> y = truncated(slopeA * crossX + interceptA);
    if (!x || !y)
        return std::nullopt;
    const QPoint cross(*x, *y);
    if (!isInBounds(cross, a) || !isInBounds(cross, b))
        return std::nullopt;
    return cross;
}

QVector<QPoint> DrawGeometry::newEdgeCrossings(const QVector<QPoint>& points, const QPoint& next)
{
    QVector<QPoint> crossings;
    for (int i = 0; i + 2 < points.size(); ++i) {
        if (const auto cross = segmentsCross({points[i], points[i + 1]}, {next, points.last()}))
            crossings.append(*cross);
    }
    return crossings;
}

QVector<QPoint> DrawGeometry::closingEdgeCrossings(const QVector<QPoint>& points,
                                                   const QPoint& next)
{
    QVector<QPoint> crossings;
    for (int i = points.size() - 1; i >= 2; --i) {
        if (const auto cross = segmentsCross({points[i], points[i - 1]}, {points.first(), next}))
            crossings.append(*cross);
    }
    return crossings;
}

bool DrawGeometry::meet(const QLine& a, const QLine& b)
{
    const int first = turnOf(a, b.p1());
    const int second = turnOf(a, b.p2());
    const int third = turnOf(b, a.p1());
    const int fourth = turnOf(b, a.p2());
    if (first != second && third != fourth)
        return true;
    return (first == 0 && isInBounds(b.p1(), a)) || (second == 0 && isInBounds(b.p2(), a)) ||
           (third == 0 && isInBounds(a.p1(), b)) || (fourth == 0 && isInBounds(a.p2(), b));
}

bool DrawGeometry::crossesItself(const QVector<QPoint>& points, bool isClosed)
{
    QVector<QPoint> corners = points;
    if (isClosed && !corners.isEmpty())
        corners.append(corners.first());
    corners.erase(std::unique(corners.begin(), corners.end()), corners.end());
    const int lines = corners.size() - 1;
    for (int i = 0; i < lines; ++i) {
        const QLine line(corners[i], corners[i + 1]);
        // The closing line shares a corner with the first.
        const int last = isClosed && i == 0 ? lines - 1 : lines;
        for (int j = i + 2; j < last; ++j) {
            if (meet(line, {corners[j], corners[j + 1]}))
                return true;
        }
    }
    return false;
}

double DrawGeometry::distance(const QLine& line, const QPoint& point)
{
    const QPointF start(line.p1());
    const QPointF along = QPointF(line.p2()) - start;
    const QPointF to = QPointF(point) - start;
    const double length = QPointF::dotProduct(along, along);
    const double part =
        length > 0 ? qBound(0.0, QPointF::dotProduct(along, to) / length, 1.0) : 0.0;
    const QPointF apart = to - along * part;
    return std::hypot(apart.x(), apart.y());
}

double DrawGeometry::directionAngle(const QLine& line)
{
    const float dx = deltaX(line);
    const float dy = deltaY(line);
    const double steepness =
        dx == 0.0F ? kHalfPi : std::atan(static_cast<double>(std::fabs(dy / dx)));
    if (dx < 0)
        return dy >= 0 ? kPi - steepness : kPi + steepness;
    return dy < 0 ? 2 * kPi - steepness : steepness;
}

double DrawGeometry::directionDegrees(const QLine& line)
{
    return directionAngle(line) * 180 / kPi;
}

int DrawGeometry::side(const QPoint& a, const QPoint& b, const QPoint& c)
{
    double degrees = directionDegrees({a, c}) - directionDegrees({a, b});
    if (degrees > 180)
        degrees -= 360;
    else if (degrees < -180)
        degrees += 360;
    const double size = std::fabs(degrees);
    if (size < kSameDegrees || std::fabs(size - 180) < kSameDegrees)
        return 0;
    return degrees > 0 ? 1 : -1;
}

QVector<QPoint> DrawGeometry::completeParallelogram(const QPoint& p0, const QPoint& p1,
                                                    const QPoint& click, const QSize& canvasSize)
{
    QPoint third;
    QPoint fourth;
    placeOnAxis(click.x(), qint64{p0.x()} - p1.x(), canvasSize.width(), &third.rx(), &fourth.rx());
    placeOnAxis(click.y(), qint64{p0.y()} - p1.y(), canvasSize.height(), &third.ry(), &fourth.ry());
    return {third, fourth};
}

QPolygonF DrawGeometry::laneForbiddenPolygon(const QPoint& p0, const QPoint& p1, const QPoint& p2,
                                             const QSize& canvasSize)
{
    const int allowed = side(p0, p1, p2);
    if (allowed == 0 || canvasSize.isEmpty())
        return {};
    const QPointF corners[] = {{0.0, 0.0},
                               {qreal(canvasSize.width()), 0.0},
                               {qreal(canvasSize.width()), qreal(canvasSize.height())},
                               {0.0, qreal(canvasSize.height())}};
    QPolygonF forbidden;
    for (int i = 0; i < 4; ++i) {
        const QPointF from = corners[i];
        const QPointF to = corners[(i + 1) % 4];
        const double fromTurn = turn(p0, p1, from) * -allowed;
        const double toTurn = turn(p0, p1, to) * -allowed;
        if (fromTurn > 0)
            forbidden << from;
        if ((fromTurn > 0) != (toTurn > 0))
            forbidden << from + (to - from) * (fromTurn / (fromTurn - toTurn));
    }
    return forbidden;
}

QPoint DrawGeometry::middle(const QPoint& a, const QPoint& b)
{
    return {clampToInt((qint64{a.x()} + b.x()) / 2), clampToInt((qint64{a.y()} + b.y()) / 2)};
}

QVector<QPoint> DrawGeometry::directionMidpoints(const QVector<QPoint>& parallelogram)
{
    if (parallelogram.size() != 4)
        return {};
    return {middle(parallelogram[3], parallelogram[0]), middle(parallelogram[1], parallelogram[2])};
}

BaseDrawDirectionType DrawGeometry::directionAlong(const QLine& edge, const QLine& course)
{
    const double along = double(deltaX(edge)) * double(deltaX(course)) +
                         double(deltaY(edge)) * double(deltaY(course));
    return along < 0 ? BaseDrawDirectionType::RightToLeft : BaseDrawDirectionType::LeftToRight;
}

QPolygon DrawGeometry::clockwise(const QVector<QPoint>& points)
{
    double area = 0;
    for (int i = 0; i < points.size(); ++i) {
        const QPoint& next = points[(i + 1) % points.size()];
        area += double(points[i].x()) * next.y() - double(next.x()) * points[i].y();
    }
    QPolygon polygon(points);
    if (area < 0)
        std::reverse(polygon.begin(), polygon.end());
    return polygon;
}
