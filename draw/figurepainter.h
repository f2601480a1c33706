#pragma once

#include "host/gdiplus.h"

#include <QLine>
#include <QPoint>
#include <QString>
#include <QVector>

class CanvasFigure;

/**
 * The strokes that figures are made of, in one figure's colour. Lives for one painting; all
 * positions are canvas pixels.
 */
class FigurePainter
{
public:
    static constexpr Gdiplus::ARGB kRefusedColor = 0xFFFF0000;

    /// @p graphics must outlive the painter.
    FigurePainter(Gdiplus::Graphics& graphics, const Gdiplus::Color& color);

    /// For a figure that may not lie where it is: red and dashed.
    static FigurePainter ofRefused(Gdiplus::Graphics& graphics);
    /// For the band of @p width that lies beneath a figure's strokes: without its name.
    static FigurePainter ofBand(Gdiplus::Graphics& graphics, const Gdiplus::Color& color,
                                float width);
    /// For what lies beneath strokes and names of @p color, a pixel wider on each side, so that
    /// they can be told from any picture: dark beneath bright colours, else light.
    static FigurePainter ofCasing(Gdiplus::Graphics& graphics, const Gdiplus::Color& color);

    void line(const QLine& line) const;
    /// A line that would become an edge: red and dashed, with a small square at each of
    /// @p crossings, when it would be refused for crossing others.
    void rubberBand(const QLine& line, const QVector<QPoint>& crossings) const;
    /// Lines between consecutive points.
    void polyline(const QVector<QPoint>& points) const;
    /// The line from the first of @p points to the second, and from the third to the fourth.
    void twoLines(const QVector<QPoint>& points) const;
    /// The outline of the rectangle between two opposite corners.
    void rectangle(const QPoint& corner, const QPoint& opposite) const;
    /// An arrow across the middle of @p segment, pointing to its left as seen along it, and
    /// also to its right with @p bothEnds.
    void drawArrow(const QLine& segment, bool bothEnds) const;
    /// An arrowhead at the end of @p segment, pointing along it.
    void arrowhead(const QLine& segment) const;
    /// A stroke across @p segment at @p at, one of its ends.
    void tick(const QPoint& at, const QLine& segment) const;
    /// The first edge of @p shown with a tick across each of its ends, and its label along it.
    void staff(const CanvasFigure& shown) const;
    /// @p text along @p segment from its first point on.
    void drawLabel(const QString& text, const QLine& segment) const;
    /// The label of @p shown along its first edge, once the figure is finished.
    void name(const CanvasFigure& shown) const;

private:
    enum class Use { Strokes, Refused, Band, Casing };
    FigurePainter(Gdiplus::Graphics& graphics, const Gdiplus::Color& color, float width, Use use);
    void stroke(float x1, float y1, float x2, float y2) const;
    void squares(const QVector<QPoint>& places) const;
    void wing(float tipY, float degrees, float endY) const;

    Gdiplus::Graphics& m_graphics; ///< not owned
    Gdiplus::Color m_color;
    Gdiplus::Pen m_pen;
    Use m_use;
};
