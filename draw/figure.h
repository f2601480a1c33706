#pragma once

#include "draw/figuretypes.h"

#include <QPoint>
#include <QString>
#include <QVector>
#include <optional>

/// How many points a figure takes.
struct PointLimits {
    int minimum = 0;
    int maximum = 0;

    bool contains(int count) const { return minimum <= count && count <= maximum; }
    bool operator==(const PointLimits& other) const
    {
        return minimum == other.minimum && maximum == other.maximum;
    }
};

/**
 * A figure as a plain value: what is read and written, compared, copied and undone.
 *
 * Points are in normalized space (0..8192 on both axes), in drawing order. Those of a document
 * are kept as they are, even outside of that space and beyond the limits. A copy shares points
 * and texts with the original until one of the two changes.
 */
class Figure
{
public:
    explicit Figure(BaseDrawType kind = BaseDrawType::None, const PointLimits& limits = {});

    BaseDrawType kind() const { return m_kind; }
    const PointLimits& pointLimits() const { return m_limits; }
    void setPointLimits(const PointLimits& limits) { m_limits = limits; }

    const QVector<QPoint>& points() const { return m_points; }
    int pointCount() const { return m_points.size(); }
    bool isPointCountValid() const { return m_limits.contains(m_points.size()); }
    /// Nothing when there is no point at @p index.
    std::optional<QPoint> pointAt(int index) const;

    /// Adds a point as an operator does, and finishes the figure when it is full. False, with no
    /// point added, for a figure that is finished or full already.
    bool addPoint(const QPoint& point);
    /// Puts @p point in the place of the one at @p index; false when there is none.
    bool setPoint(int index, const QPoint& point);
    /// Adds a corner before the point at @p index, or at the end; false when the figure is full
    /// or has no such place.
    bool insertPoint(int index, const QPoint& point);
    /// False when there is no point at @p index, or when a finished figure needs all it has.
    bool removePoint(int index);
    /// Adds a point as it is, beyond the limits too, as it is read from a document.
    void appendPoint(const QPoint& point) { setPoints(m_points + QVector<QPoint>{point}); }
    /// Takes any number of points, as they are.
    void setPoints(const QVector<QPoint>& points);

    /// Moves all points, and those of the direction that are kept, by @p difference.
    void moveBy(const QPoint& difference);

    /// The closed polygon of the points, the first one repeated at its end; empty for fewer than
    /// two. That of two points encloses nothing, a rectangle's either.
    QVector<QPoint> outline() const;

    /// The figure's name, painted along its first edge.
    const QString& label() const { return m_label; }
    void setLabel(const QString& label) { m_label = label; }
    EdgeLabelMode edgeLabelMode() const { return m_edgeLabelMode; }
    void setEdgeLabelMode(EdgeLabelMode mode) { m_edgeLabelMode = mode; }

    BaseDrawDirectionType direction() const { return m_direction; }
    void setDirection(BaseDrawDirectionType direction);
    /// The direction points kept, else the ones that follow from points and direction; empty
    /// for a figure without four points.
    QVector<QPoint> directionPoints() const;
    /// Takes the two points that say in which direction a parallelogram is crossed, and the
    /// direction that follows from them. They are kept as they are until the figure gets
    /// other points or another direction, or one of its points is moved so that they would say
    /// another one; so the figure's own points come first.
    void setDirectionPoints(const QVector<QPoint>& points);

    bool isFinished() const { return m_finished; }
    void setFinished(bool finished) { m_finished = finished; }

    bool operator==(const Figure& other) const;
    bool operator!=(const Figure& other) const { return !(*this == other); }

private:
    QVector<QPoint> m_points;
    QVector<QPoint> m_directionPoints; ///< as read; empty once they follow from the points
    QString m_label;
    PointLimits m_limits;
    BaseDrawType m_kind;
    BaseDrawDirectionType m_direction = BaseDrawDirectionType::None;
    EdgeLabelMode m_edgeLabelMode = EdgeLabelMode::Name;
    bool m_finished = false;
};
