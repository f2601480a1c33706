#pragma once

#include "draw/basedrawdirectiontype.h"
#include "draw/basedrawtype.h"
#include "draw/edgelabelmode.h"
#include "host/gdiplus.h"

#include <QLine>
#include <QMutex>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QVector>
#include <atomic>
#include <memory>
#include <optional>

class FigurePainter;

/**
 * One figure that an operator draws over the picture.
 *
 * Points are kept in normalized space (0..8192); mouse input and painting are in canvas pixels.
 * The base owns points, conversion, locking and completion. A kind of figure says only how its
 * points are accepted and how it is painted.
 *
 * The destructor is neither public nor virtual: figures are made by createDraw(), whose shared
 * pointer knows the kind that it deletes.
 */
class BaseDraw
{
public:
    BaseDraw(const BaseDraw&) = delete;
    BaseDraw& operator=(const BaseDraw&) = delete;

    /// Adds the point (@p x, @p y) in canvas pixels; true when the figure refuses it, as a full
    /// or finished one does.
    virtual bool addPoint(int x, int y);
    /// Moves the rubber band's end to (@p x, @p y) in canvas pixels.
    virtual void setMovePoint(int x, int y);
    /// Paints the figure; nothing while it has fewer than two points, the moving one included.
    virtual void draw(Gdiplus::Graphics* graphics);
    virtual bool isPointCountValid() const;
    /// The area in canvas pixels in which this figure's own next points, or figures inside it,
    /// may not fall; null when there is none.
    virtual std::unique_ptr<Gdiplus::GraphicsPath> getForbidenArea() const;
    /// Appends the points in normalized space to @p points.
    virtual void getPoints(QVector<QPoint>& points) const;
    virtual Gdiplus::Color color() const;

    BaseDrawType type() const { return m_type; }

    /// How many points the figure takes; it is finished by itself at the maximum.
    void setPointLimits(int minimum, int maximum);
    int minimumPointCount() const { return m_minimumPoints; }
    int maximumPointCount() const { return m_maximumPoints; }
    int pointCount() const;

    /// Appends a point in normalized space as it is, as read from a document.
    void appendPoint(const QPoint& normalizedPoint);
    /// Puts @p normalizedPoints in the place of all points, as they are, and finishes the figure.
    void setFinishedPoints(const QVector<QPoint>& normalizedPoints);
    void clear();
    /// Sets the rubber band's end in canvas pixels, or drops it.
    void setMovePoint(const std::optional<QPoint>& canvasPoint);
    /// The rubber band's end in canvas pixels.
    std::optional<QPoint> movePoint() const;
    QVector<QPoint> canvasPoints() const;
    /// One point in canvas pixels; nothing when @p index is out of range.
    std::optional<QPoint> canvasPoint(int index) const;

    /// Finishes the figure if its point count is within the limits; returns whether it is.
    bool tryFinish();
    void setFinished(bool finished);
    bool isFinished() const;

    void setSelected(bool selected);
    bool isSelected() const { return m_selected; }
    /// Grows with every change of any figure's selection, so that what was found selected can
    /// be kept until then.
    static quint64 selectionRevision();
    /// Another number after every change of what this figure paints; no two states of any figures
    /// share one, so that what was painted can be kept until then.
    quint64 revision() const { return m_revision; }
    void setDrawOver(bool over) { m_drawOver = over; }
    bool isDrawOver() const { return m_drawOver; }

    void setCanvasSize(int width, int height);
    QSize canvasSize() const;

    void setLabel(const QString& label);
    const QString& label() const { return m_label; }
    void setDirection(BaseDrawDirectionType direction);
    BaseDrawDirectionType direction() const { return m_direction; }
    void setEdgeLabelMode(EdgeLabelMode mode);
    EdgeLabelMode edgeLabelMode() const { return m_edgeLabelMode; }

    /// Takes the two points (0..8192) that say in which direction a parallelogram is crossed,
    /// and the direction that follows from them. They are kept as they are until the figure's
    /// points or its direction change; so the figure's own points come first.
    void setDirectionPoints(const QVector<QPoint>& normalizedPoints);
    /// The direction points kept, else the ones that follow from points and direction; empty
    /// for a figure without four points.
    QVector<QPoint> directionPoints() const;

    /// Takes over everything of @p other but its kind: points, limits, state, label, canvas.
    void copyStateFrom(const BaseDraw& other);

protected:
    explicit BaseDraw(BaseDrawType type, int minimumPoints = 0, int maximumPoints = 0);
    ~BaseDraw() = default;

    /// Paints with at least two points known, of which one may be the moving one; a finished
    /// figure gets no moving point. The figure's mutex is held.
    virtual void paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
                       const std::optional<QPoint>& canvasMovePoint) const = 0;

    /// The line from the first point to the second, or to the moving one while that is missing.
    static QLine firstSegment(const QVector<QPoint>& canvasPoints,
                              const std::optional<QPoint>& canvasMovePoint);
    /// The points, the moving one among them when there is one.
    static QVector<QPoint> withMovePoint(QVector<QPoint> canvasPoints,
                                         const std::optional<QPoint>& canvasMovePoint);

    // For overrides that already hold the mutex.
    bool isFinishedLocked() const { return m_finished; }
    QSize canvasSizeLocked() const { return m_canvasSize; }
    /// @p canvasPoint in normalized space; (0, 0) while the canvas has no area.
    QPoint normalized(const QPoint& canvasPoint) const;
    bool appendCanvasPoint(const QPoint& canvasPoint);
    bool appendNormalizedPoint(const QPoint& normalizedPoint);
    void storeMovePoint(const QPoint& canvasPoint);
    void storeNormalizedMovePoint(const QPoint& normalizedPoint);
    const QVector<QPoint>& points() const { return m_points; }
    QVector<QPoint> canvasPointsLocked() const;
    QMutex& mutex() const { return m_mutex; }

private:
    void change();

    mutable QMutex m_mutex; ///< guards points, limits, canvas size, move point, finished flag
    std::atomic<quint64> m_revision;
    QVector<QPoint> m_points;
    QVector<QPoint> m_directionPoints;
    QString m_label;
    std::optional<QPoint> m_movePoint;
    QSize m_canvasSize{0, 0};
    int m_minimumPoints;
    int m_maximumPoints;
    BaseDrawType m_type;
    BaseDrawDirectionType m_direction = BaseDrawDirectionType::None;
    EdgeLabelMode m_edgeLabelMode = EdgeLabelMode::Name;
    bool m_finished = false;
    bool m_selected = false;
    bool m_drawOver = true;
};
