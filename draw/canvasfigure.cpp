#include "draw/canvasfigure.h"

#include "draw/drawgeometry.h"

CanvasFigure::CanvasFigure(const Figure& figure, const std::optional<QPoint>& movePoint,
                           const QSize& canvasSize)
    : m_figure(figure), m_canvasSize(canvasSize), m_points(onCanvas(figure.points()))
{
    if (movePoint && !figure.isFinished())
        m_movePoint = DrawGeometry::toCanvas(*movePoint, canvasSize);
}

QVector<QPoint> CanvasFigure::shownPoints() const
{
    return m_movePoint ? m_points + QVector<QPoint>{*m_movePoint} : m_points;
}

QLine CanvasFigure::firstEdge() const
{
    return {m_points[0], m_points.size() > 1 ? m_points[1] : *m_movePoint};
}

QVector<QPoint> CanvasFigure::outline() const
{
    return onCanvas(m_figure.outline());
}

QPoint CanvasFigure::normalized(const QPoint& canvasPoint) const
{
    return DrawGeometry::toNormalized(canvasPoint, m_canvasSize).value_or(QPoint());
}

QVector<QPoint> CanvasFigure::onCanvas(const QVector<QPoint>& normalizedPoints) const
{
    QVector<QPoint> points;
    points.reserve(normalizedPoints.size());
    for (const QPoint& point : normalizedPoints)
        points.append(DrawGeometry::toCanvas(point, m_canvasSize));
    return points;
}
