#include "draw/basedraw.h"

#include "draw/drawgeometry.h"
#include "draw/figurepainter.h"

#include <QMutexLocker>
#include <algorithm>
#include <atomic>

namespace
{

const Gdiplus::ARGB kNormalColor = 0xFF007DFF;
const Gdiplus::ARGB kSelectedColor = 0xFFFFD700;

std::atomic<quint64> g_selectionRevision{0};
std::atomic<quint64> g_lastRevision{0};

} // namespace

BaseDraw::BaseDraw(BaseDrawType type, int minimumPoints, int maximumPoints)
    : m_revision(++g_lastRevision),
      m_minimumPoints(minimumPoints),
      m_maximumPoints(maximumPoints),
      m_type(type)
{
}

bool BaseDraw::addPoint(int x, int y)
{
    const QMutexLocker lock(&m_mutex);
    return appendCanvasPoint({x, y});
}

void BaseDraw::setMovePoint(int x, int y)
{
    const QMutexLocker lock(&m_mutex);
    storeMovePoint({x, y});
}

void BaseDraw::draw(Gdiplus::Graphics* graphics)
{
    if (!graphics)
        return;
    const QMutexLocker lock(&m_mutex);
    std::optional<QPoint> move;
    if (m_movePoint && !m_finished)
        move = DrawGeometry::toCanvas(*m_movePoint, m_canvasSize);
    if (m_points.size() + (move ? 1 : 0) >= 2)
        paint(FigurePainter(*graphics, color()), canvasPointsLocked(), move);
}

bool BaseDraw::isPointCountValid() const
{
    const QMutexLocker lock(&m_mutex);
    return m_minimumPoints <= m_points.size() && m_points.size() <= m_maximumPoints;
}

std::unique_ptr<Gdiplus::GraphicsPath> BaseDraw::getForbidenArea() const
{
    return nullptr;
}

void BaseDraw::getPoints(QVector<QPoint>& points) const
{
    const QMutexLocker lock(&m_mutex);
    points += m_points;
}

Gdiplus::Color BaseDraw::color() const
{
    return Gdiplus::Color(m_selected ? kSelectedColor : kNormalColor);
}

void BaseDraw::setPointLimits(int minimum, int maximum)
{
    const QMutexLocker lock(&m_mutex);
    m_minimumPoints = minimum;
    m_maximumPoints = maximum;
}

int BaseDraw::pointCount() const
{
    const QMutexLocker lock(&m_mutex);
    return m_points.size();
}

void BaseDraw::appendPoint(const QPoint& normalizedPoint)
{
    const QMutexLocker lock(&m_mutex);
    m_points.append(normalizedPoint);
    m_directionPoints.clear();
    change();
}

void BaseDraw::setFinishedPoints(const QVector<QPoint>& normalizedPoints)
{
    const QMutexLocker lock(&m_mutex);
    m_points = normalizedPoints;
    m_directionPoints.clear();
    m_finished = true;
    change();
}

void BaseDraw::clear()
{
    const QMutexLocker lock(&m_mutex);
    m_points.clear();
    m_directionPoints.clear();
    m_movePoint.reset();
    m_finished = false;
    change();
}

void BaseDraw::setMovePoint(const std::optional<QPoint>& canvasPoint)
{
    const QMutexLocker lock(&m_mutex);
    if (canvasPoint) {
        storeMovePoint(*canvasPoint);
        return;
    }
    m_movePoint.reset();
    change();
}

std::optional<QPoint> BaseDraw::movePoint() const
{
    const QMutexLocker lock(&m_mutex);
    if (!m_movePoint)
        return std::nullopt;
    return DrawGeometry::toCanvas(*m_movePoint, m_canvasSize);
}

QVector<QPoint> BaseDraw::canvasPoints() const
{
    const QMutexLocker lock(&m_mutex);
    return canvasPointsLocked();
}

std::optional<QPoint> BaseDraw::canvasPoint(int index) const
{
    const QMutexLocker lock(&m_mutex);
    if (index < 0 || index >= m_points.size())
        return std::nullopt;
    return DrawGeometry::toCanvas(m_points[index], m_canvasSize);
}

bool BaseDraw::tryFinish()
{
    const bool valid = isPointCountValid();
    setFinished(valid);
    return valid;
}

void BaseDraw::setFinished(bool finished)
{
    const QMutexLocker lock(&m_mutex);
    if (m_finished == finished)
        return;
    m_finished = finished;
    change();
}

bool BaseDraw::isFinished() const
{
    const QMutexLocker lock(&m_mutex);
    return m_finished;
}

void BaseDraw::setSelected(bool selected)
{
    if (m_selected == selected)
        return;
    m_selected = selected;
    ++g_selectionRevision;
    change();
}

quint64 BaseDraw::selectionRevision()
{
    return g_selectionRevision;
}

void BaseDraw::setCanvasSize(int width, int height)
{
    const QMutexLocker lock(&m_mutex);
    const QSize size(std::max(width, 0), std::max(height, 0));
    if (m_canvasSize == size)
        return;
    m_canvasSize = size;
    change();
}

QSize BaseDraw::canvasSize() const
{
    const QMutexLocker lock(&m_mutex);
    return m_canvasSize;
}

void BaseDraw::setLabel(const QString& label)
{
    if (m_label == label)
        return;
    m_label = label;
    change();
}

void BaseDraw::setEdgeLabelMode(EdgeLabelMode mode)
{
    if (m_edgeLabelMode == mode)
        return;
    m_edgeLabelMode = mode;
    change();
}

void BaseDraw::setDirection(BaseDrawDirectionType direction)
{
    const QMutexLocker lock(&m_mutex);
    if (m_direction == direction)
        return;
    m_direction = direction;
    m_directionPoints.clear();
    change();
}

void BaseDraw::setDirectionPoints(const QVector<QPoint>& normalizedPoints)
{
    const QMutexLocker lock(&m_mutex);
    m_directionPoints = normalizedPoints;
    m_direction = BaseDrawDirectionType::LeftToRight;
    if (m_points.size() >= 2 && normalizedPoints.size() >= 2)
        m_direction = DrawGeometry::directionAlong({m_points[0], m_points[1]},
                                                   {normalizedPoints[0], normalizedPoints[1]});
    change();
}

QVector<QPoint> BaseDraw::directionPoints() const
{
    const QMutexLocker lock(&m_mutex);
    if (!m_directionPoints.isEmpty())
        return m_directionPoints;
    QVector<QPoint> midpoints = DrawGeometry::directionMidpoints(m_points);
    if (m_direction == BaseDrawDirectionType::RightToLeft)
        std::reverse(midpoints.begin(), midpoints.end());
    return midpoints;
}

void BaseDraw::copyStateFrom(const BaseDraw& other)
{
    if (&other == this)
        return;
    {
        const QMutexLocker lock(&m_mutex);
        const QMutexLocker otherLock(&other.m_mutex);
        m_points = other.m_points;
        m_directionPoints = other.m_directionPoints;
        m_label = other.m_label;
        m_movePoint = other.m_movePoint;
        m_canvasSize = other.m_canvasSize;
        m_minimumPoints = other.m_minimumPoints;
        m_maximumPoints = other.m_maximumPoints;
        m_direction = other.m_direction;
        m_edgeLabelMode = other.m_edgeLabelMode;
        m_finished = other.m_finished;
        m_drawOver = other.m_drawOver;
        change();
    }
    setSelected(other.m_selected);
}

bool BaseDraw::appendCanvasPoint(const QPoint& canvasPoint)
{
    return appendNormalizedPoint(normalized(canvasPoint));
}

bool BaseDraw::appendNormalizedPoint(const QPoint& normalizedPoint)
{
    const bool accepted = !m_finished && m_points.size() < m_maximumPoints;
    if (accepted) {
        m_points.append(normalizedPoint);
        m_directionPoints.clear();
    }
    if (m_points.size() >= m_maximumPoints)
        m_finished = true;
    change();
    return !accepted;
}

void BaseDraw::storeMovePoint(const QPoint& canvasPoint)
{
    storeNormalizedMovePoint(DrawGeometry::toNormalized(canvasPoint, m_canvasSize)
                                 .value_or(m_movePoint.value_or(QPoint())));
}

void BaseDraw::storeNormalizedMovePoint(const QPoint& normalizedPoint)
{
    m_movePoint = normalizedPoint;
    // A finished figure does not show it, and the mouse moves over those all the time.
    if (!m_finished)
        change();
}

QLine BaseDraw::firstSegment(const QVector<QPoint>& canvasPoints,
                             const std::optional<QPoint>& canvasMovePoint)
{
    const QPoint& first = canvasPoints.first();
    return {first, canvasPoints.size() > 1 ? canvasPoints[1] : canvasMovePoint.value_or(first)};
}

QVector<QPoint> BaseDraw::withMovePoint(QVector<QPoint> canvasPoints,
                                        const std::optional<QPoint>& canvasMovePoint)
{
    if (canvasMovePoint)
        canvasPoints.append(*canvasMovePoint);
    return canvasPoints;
}

QPoint BaseDraw::normalized(const QPoint& canvasPoint) const
{
    return DrawGeometry::toNormalized(canvasPoint, m_canvasSize).value_or(QPoint());
}

QVector<QPoint> BaseDraw::canvasPointsLocked() const
{
    QVector<QPoint> canvasPoints;
    canvasPoints.reserve(m_points.size());
    for (const QPoint& point : m_points)
        canvasPoints.append(DrawGeometry::toCanvas(point, m_canvasSize));
    return canvasPoints;
}

void BaseDraw::change()
{
    m_revision = ++g_lastRevision;
}
