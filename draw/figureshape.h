#pragma once

#include <QLine>
#include <QPoint>
#include <QPolygon>
#include <QVector>

class CanvasFigure;

/**
 * Where a figure lies on the canvas, for a mouse that looks for it: its corners, its lines, and the
 * area between them. All in canvas pixels.
 */
class FigureShape
{
public:
    /// So many pixels from a line or a corner still mean it.
    static constexpr int kReach = 8;

    explicit FigureShape(const CanvasFigure& figure);

    /// In the order of the points; of a rectangle all four, of which the first and the third are
    /// its points.
    const QVector<QPoint>& corners() const { return m_corners; }
    /// From corner to corner, the closing one last.
    const QVector<QLine>& lines() const { return m_lines; }
    /// Whether @p at is inside; of a lane, and of a figure without an inside, also within reach of
    /// its lines.
    bool holds(const QPoint& at) const;
    /// Whether @p at is inside, or within reach of a line.
    bool isNear(const QPoint& at) const;

private:
    bool isNearLine(const QPoint& at) const;

    QVector<QPoint> m_corners;
    QVector<QLine> m_lines;
    QPolygon m_area;            ///< empty for a figure without an inside
    bool m_isOnlyLines = false; ///< that are meant from beside, too
};
