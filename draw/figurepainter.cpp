#include "draw/figurepainter.h"

#include "draw/canvasfigure.h"
#include "draw/drawgeometry.h"
#include "draw/labelfont.h"
#include "draw/shortenedtext.h"
#include "host/api/limits.h"

#include <algorithm>

namespace
{

const Gdiplus::REAL kPenWidth = 2.0F;
const Gdiplus::REAL kCasing = 1.0F; ///< on each side, in pixels
// As opaque as it takes for 3:1 between them and blue or red, or gold, on any picture from which
// these cannot be told.
const Gdiplus::ARGB kLightCasing = 0xEEFFFFFF;
const Gdiplus::ARGB kDarkCasing = 0x99000000;
const float kHalfShaft = 20.0F;
const float kWing = 10.0F;
const float kLeftWingDegrees = -135.0F;
const float kRightWingDegrees = -225.0F;

/// Restores the graphics state at the end of its scope.
class StateScope
{
public:
    explicit StateScope(Gdiplus::Graphics& graphics)
        : m_graphics(graphics), m_state(graphics.Save())
    {
    }
    ~StateScope() { m_graphics.Restore(m_state); }
    StateScope(const StateScope&) = delete;
    StateScope& operator=(const StateScope&) = delete;

private:
    Gdiplus::Graphics& m_graphics;
    Gdiplus::GraphicsState m_state;
};

Gdiplus::Color casingOf(const Gdiplus::Color& color)
{
    const int brightness = (2 * color.GetR() + 5 * color.GetG() + color.GetB()) / 8;
    return Gdiplus::Color(brightness > 0x80 ? kDarkCasing : kLightCasing);
}

void moveTo(Gdiplus::Graphics& graphics, const QPoint& origin, const QLine& segment)
{
    graphics.TranslateTransform(float(origin.x()), float(origin.y()));
    graphics.RotateTransform(float(DrawGeometry::directionDegrees(segment)));
}

} // namespace

FigurePainter::FigurePainter(Gdiplus::Graphics& graphics, const Gdiplus::Color& color)
    : FigurePainter(graphics, color, kPenWidth, Use::Strokes)
{
}

FigurePainter::FigurePainter(Gdiplus::Graphics& graphics, const Gdiplus::Color& color, float width,
                             Use use)
    : m_graphics(graphics), m_color(color), m_pen(color, width), m_use(use)
{
    if (use == Use::Refused)
        m_pen.SetDashStyle(Gdiplus::DashStyleDash);
    if (use == Use::Band || use == Use::Casing)
        m_pen.SetLineCap(Gdiplus::LineCapRound, Gdiplus::LineCapRound, Gdiplus::DashCapRound);
}

FigurePainter FigurePainter::ofRefused(Gdiplus::Graphics& graphics)
{
    return {graphics, Gdiplus::Color(kRefusedColor), kPenWidth, Use::Refused};
}

FigurePainter FigurePainter::ofBand(Gdiplus::Graphics& graphics, const Gdiplus::Color& color,
                                    float width)
{
    return {graphics, color, width, Use::Band};
}

FigurePainter FigurePainter::ofCasing(Gdiplus::Graphics& graphics, const Gdiplus::Color& color)
{
    return {graphics, casingOf(color), kPenWidth + 2 * kCasing, Use::Casing};
}

void FigurePainter::line(const QLine& line) const
{
    m_graphics.DrawLine(&m_pen, line.x1(), line.y1(), line.x2(), line.y2());
}

void FigurePainter::rubberBand(const QLine& line, const QVector<QPoint>& crossings) const
{
    const Gdiplus::Color red(kRefusedColor);
    if (crossings.isEmpty() || m_use == Use::Band) {
        this->line(line);
    } else if (m_use == Use::Casing) {
        const FigurePainter casing = ofCasing(m_graphics, red);
        casing.squares(crossings);
        casing.line(line);
    } else {
        FigurePainter(m_graphics, red).squares(crossings);
        ofRefused(m_graphics).line(line);
    }
}

void FigurePainter::polyline(const QVector<QPoint>& points) const
{
    for (int i = 0; i + 1 < points.size(); ++i)
        line({points[i], points[i + 1]});
}

void FigurePainter::twoLines(const QVector<QPoint>& points) const
{
    line({points[0], points[1]});
    if (points.size() >= 4)
        line({points[2], points[3]});
}

void FigurePainter::rectangle(const QPoint& corner, const QPoint& opposite) const
{
    const auto [left, right] = std::minmax({corner.x(), opposite.x()});
    const auto [top, bottom] = std::minmax({corner.y(), opposite.y()});
    m_graphics.DrawRectangle(&m_pen, float(left), float(top), float(qint64{right} - left),
                             float(qint64{bottom} - top));
}

void FigurePainter::drawArrow(const QLine& segment, bool bothEnds) const
{
    const StateScope scope(m_graphics);
    moveTo(m_graphics, DrawGeometry::middle(segment.p1(), segment.p2()), segment);
    stroke(0, -kHalfShaft, 0, kHalfShaft);
    for (const float degrees : {kLeftWingDegrees, kRightWingDegrees}) {
        wing(-kHalfShaft, degrees, -kWing);
        if (bothEnds)
            wing(kHalfShaft, degrees, kWing);
    }
}

void FigurePainter::arrowhead(const QLine& segment) const
{
    const StateScope scope(m_graphics);
    moveTo(m_graphics, segment.p2(), segment);
    wing(0, kLeftWingDegrees, -kWing);
    wing(0, kRightWingDegrees, kWing);
}

void FigurePainter::tick(const QPoint& at, const QLine& segment) const
{
    const StateScope scope(m_graphics);
    moveTo(m_graphics, at, segment);
    stroke(0, -kHalfShaft, 0, kHalfShaft);
}

void FigurePainter::staff(const CanvasFigure& shown) const
{
    const QLine edge = shown.firstEdge();
    line(edge);
    tick(edge.p1(), edge);
    tick(edge.p2(), edge);
    name(shown);
}

void FigurePainter::drawLabel(const QString& text, const QLine& segment) const
{
    if (text.isEmpty() || m_use == Use::Band)
        return;
    const StateScope scope(m_graphics);
    moveTo(m_graphics, segment.p1(), segment);
    const Gdiplus::SolidBrush brush(m_color);
    const QString shown = ShortenedText::middle(text, Limits::kLabel);
    const auto write = [&](float x, float y) {
        m_graphics.DrawString(LabelFont::wide(shown), -1, &LabelFont::font(), Gdiplus::PointF(x, y),
                              &brush);
    };
    if (m_use != Use::Casing)
        return write(0, 0);
    for (const float x : {-kCasing, kCasing}) {
        write(x, -kCasing);
        write(x, kCasing);
    }
}

void FigurePainter::name(const CanvasFigure& shown) const
{
    if (shown.figure().isFinished())
        drawLabel(shown.figure().label(), shown.firstEdge());
}

void FigurePainter::stroke(float x1, float y1, float x2, float y2) const
{
    m_graphics.DrawLine(&m_pen, x1, y1, x2, y2);
}

void FigurePainter::squares(const QVector<QPoint>& places) const
{
    for (const QPoint& at : places)
        m_graphics.DrawRectangle(&m_pen, at.x(), at.y(), 2, 2);
}

void FigurePainter::wing(float tipY, float degrees, float endY) const
{
    const StateScope scope(m_graphics);
    m_graphics.TranslateTransform(0, tipY);
    m_graphics.RotateTransform(degrees);
    stroke(0, 0, 0, endY);
}
