#pragma once

#include "draw/figure.h"
#include "host/gdiplus.h"

#include <QMutex>
#include <QMutexLocker>
#include <QSize>
#include <atomic>
#include <memory>
#include <type_traits>

class CanvasFigure;
class FigurePainter;

/**
 * One figure on a canvas: what an operator draws with the mouse and sees over the picture.
 *
 * The figure itself is a value, which is kept, given and taken under a mutex, so that it is never
 * painted while it changes. Around it this class owns what the canvas needs: its size, the rubber
 * band, colours, selection. A kind of figure says only which points a click adds and how it is
 * painted. Mouse input and painting are in canvas pixels.
 *
 * The destructor is neither public nor virtual: figures are made by createDraw(), whose shared
 * pointer knows the kind that it deletes.
 */
class BaseDraw
{
public:
    explicit BaseDraw(const Figure& figure);
    BaseDraw(const BaseDraw&) = delete;
    BaseDraw& operator=(const BaseDraw&) = delete;

    /// Adds the point (@p x, @p y) in canvas pixels; true when the figure refuses it, as a full
    /// or finished one does.
    virtual bool addPoint(int x, int y);
    /// Moves the rubber band's end to (@p x, @p y) in canvas pixels.
    virtual void setMovePoint(int x, int y);
    /// Paints the figure; nothing while it has fewer than two points, the moving one included.
    virtual void draw(Gdiplus::Graphics* graphics);
    /// Paints the figure's lines so wide that they show beneath its strokes; nothing beneath one
    /// that may not lie where it is.
    void drawBeneath(Gdiplus::Graphics& graphics, const Gdiplus::Color& color, float width) const;
    /// Paints what lets the figure's strokes and names be told from any picture; they come on top.
    void drawCasing(Gdiplus::Graphics& graphics) const;
    /// How many more clicks the figure needs before it can be finished.
    virtual int clicksNeeded() const;
    virtual bool isPointCountValid() const { return figure().isPointCountValid(); }
    /// The area in canvas pixels in which this figure's own next points, or figures inside it,
    /// may not fall; null when there is none.
    virtual std::unique_ptr<Gdiplus::GraphicsPath> getForbidenArea() const;
    /// Appends the points in normalized space to @p points, in the order that is reported.
    virtual void getPoints(QVector<QPoint>& points) const;
    /// Blue; golden while selected.
    virtual Gdiplus::Color color() const;

    /// The figure as it is now.
    Figure figure() const;
    /// Puts @p figure in the place of the figure; false, with nothing changed, when it is of
    /// another kind.
    bool setFigure(const Figure& figure);
    /// The figure as it lies on the canvas now, with its rubber band.
    CanvasFigure canvasFigure() const;
    /// Paints @p figure, of the same kind, in the place of the figure until there is none again;
    /// @p isRefused says that it may not lie there.
    void setPreview(const std::optional<Figure>& figure, bool isRefused);
    /// What is painted: the figure, or the one in its place.
    CanvasFigure shownFigure() const;

    BaseDrawType type() const { return figure().kind(); }
    /// How many points the figure takes; it is finished by itself at the maximum.
    void setPointLimits(int minimum, int maximum)
    {
        edit(&Figure::setPointLimits, {minimum, maximum});
    }
    int minimumPointCount() const { return figure().pointLimits().minimum; }
    int maximumPointCount() const { return figure().pointLimits().maximum; }
    int pointCount() const { return figure().pointCount(); }
    /// Appends a point in normalized space as it is, as read from a document.
    void appendPoint(const QPoint& normalizedPoint) { edit(&Figure::appendPoint, normalizedPoint); }
    /// Removes all points and the rubber band; the figure is not finished then.
    void clear();
    QVector<QPoint> canvasPoints() const;
    /// One point in canvas pixels; nothing when @p index is out of range.
    std::optional<QPoint> canvasPoint(int index) const;
    /// Sets the rubber band's end in canvas pixels, or drops it.
    void setMovePoint(const std::optional<QPoint>& canvasPoint);
    /// The rubber band's end in canvas pixels.
    std::optional<QPoint> movePoint() const;

    /// Finishes the figure if its point count is within the limits; returns whether it is.
    bool tryFinish();
    void setFinished(bool finished) { edit(&Figure::setFinished, finished); }
    bool isFinished() const { return figure().isFinished(); }
    void setLabel(const QString& label) { edit(&Figure::setLabel, label); }
    QString label() const { return figure().label(); }
    void setDirection(BaseDrawDirectionType direction) { edit(&Figure::setDirection, direction); }
    BaseDrawDirectionType direction() const { return figure().direction(); }
    void setEdgeLabelMode(EdgeLabelMode mode) { edit(&Figure::setEdgeLabelMode, mode); }
    EdgeLabelMode edgeLabelMode() const { return figure().edgeLabelMode(); }
    /// See Figure; in normalized space.
    void setDirectionPoints(const QVector<QPoint>& normalizedPoints)
    {
        edit(&Figure::setDirectionPoints, normalizedPoints);
    }
    QVector<QPoint> directionPoints() const { return figure().directionPoints(); }

    void setSelected(bool selected);
    bool isSelected() const { return m_selected; }
    /// False from the operator's first change on until the work is saved or given up.
    void setDrawOver(bool over) { m_drawOver = over; }
    bool isDrawOver() const { return m_drawOver; }
    void setCanvasSize(int width, int height);
    QSize canvasSize() const;

    /// Grows with every change of any figure's selection, so that what was found selected can
    /// be kept until then.
    static quint64 selectionRevision();
    /// Another number after every change of what this figure paints; no two states of any figures
    /// share one, so that what was painted can be kept until then.
    quint64 revision() const { return m_revision; }
    /// Grows with every such change of any figure, but for moves of a rubber band.
    static quint64 lastRevision();

protected:
    ~BaseDraw() = default;

    // What sets kinds apart. All three are called with the mutex held, so they look at nothing but
    // their arguments.

    /// The points in normalized space that a click at @p canvasPoint adds to @p drawn, mostly
    /// that one; none when it is refused.
    virtual QVector<QPoint> clicked(const CanvasFigure& drawn, const QPoint& canvasPoint) const;
    /// Makes of @p end, where the mouse is, the end of the rubber band of @p figure, in normalized
    /// space; false when the band stays where it is.
    virtual bool moved(const Figure& figure, QPoint& end) const;
    /// Paints with at least two points shown, of which one may be the moving one.
    virtual void paint(const FigurePainter& painter, const CanvasFigure& shown) const = 0;

private:
    struct Preview {
        Figure figure;
        bool isRefused;
    };

    /// Sets @p value, and the revision if the figure is another one then.
    template<typename Value>
    void edit(void (Figure::*setter)(Value), const std::decay_t<Value>& value)
    {
        const QMutexLocker lock(&m_mutex);
        const Figure before = m_figure;
        (m_figure.*setter)(value);
        if (m_figure != before)
            change();
    }
    const Figure& painted() const { return m_preview ? m_preview->figure : m_figure; }
    bool isRefused() const { return m_preview && m_preview->isRefused; }
    void paintShown(const FigurePainter& painter) const;
    QPoint normalizedMouse(const QPoint& canvasPoint) const;
    void change();
    /// The rubber band alone is another one: told without what all figures share, as it is each
    /// time that the mouse moves.
    void changeBand();

    mutable QMutex m_mutex; ///< guards figure, move point and canvas size
    std::atomic<quint64> m_revision;
    Figure m_figure;
    std::unique_ptr<const Preview> m_preview; ///< null for none
    std::optional<QPoint> m_movePoint;        ///< normalized
    QSize m_canvasSize{0, 0};
    bool m_selected = false;
    bool m_drawOver = true;
};
