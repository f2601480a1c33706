#pragma once

#include "draw/figure.h"

#include <QLine>
#include <QSize>

/**
 * A figure as it lies on a canvas: a snapshot to paint it from and to take clicks with. The figure
 * itself stays in normalized space, everything else is in canvas pixels.
 */
class CanvasFigure
{
public:
    /// @p movePoint, the rubber band's end, is in normalized space.
    CanvasFigure(const Figure& figure, const std::optional<QPoint>& movePoint,
                 const QSize& canvasSize);

    const Figure& figure() const { return m_figure; }
    const QSize& canvasSize() const { return m_canvasSize; }
    const QVector<QPoint>& points() const { return m_points; }
    /// The rubber band's end; a finished figure shows none.
    const std::optional<QPoint>& movePoint() const { return m_movePoint; }
    /// The points, and after them the moving one when there is one.
    QVector<QPoint> shownPoints() const;
    /// The line from the first point to the second, which may be the moving one. Not to be called
    /// for fewer than two.
    QLine firstEdge() const;
    /// Figure::outline() on the canvas.
    QVector<QPoint> outline() const;
    /// @p canvasPoint in normalized space; (0, 0) while the canvas has no area.
    QPoint normalized(const QPoint& canvasPoint) const;

private:
    QVector<QPoint> onCanvas(const QVector<QPoint>& normalizedPoints) const;

    Figure m_figure;
    QSize m_canvasSize;
    QVector<QPoint> m_points;
    std::optional<QPoint> m_movePoint;
};
