#include "draw/crosshair.h"

#include "draw/drawgeometry.h"
#include "draw/labelfont.h"
#include "host/gdiplus.h"

#include <QString>

namespace
{

// Neither colour of figures, and to be seen on any picture.
const Gdiplus::ARGB kInk = 0xFFFFFFFF;
const Gdiplus::ARGB kEdge = 0xFF101418;
constexpr int kArm = 14;
constexpr int kGap = 3;
constexpr int kTextGap = 6;

void paintArms(Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen, const QPoint& at, int more)
{
    const int from = kGap - more;
    const int to = kArm + more;
    graphics.DrawLine(&pen, at.x() + from, at.y(), at.x() + to, at.y());
    graphics.DrawLine(&pen, at.x() - from, at.y(), at.x() - to, at.y());
    graphics.DrawLine(&pen, at.x(), at.y() + from, at.x(), at.y() + to);
    graphics.DrawLine(&pen, at.x(), at.y() - from, at.x(), at.y() - to);
}

} // namespace

void CrossHair::startAt(const QPoint& position)
{
    m_position = position;
    m_isStarted = true;
}

void CrossHair::reset()
{
    m_isStarted = false;
    hide();
}

void CrossHair::moveBy(const QPoint& pixels, const QSize& canvas)
{
    startAt(position(canvas) + pixels);
    m_position = position(canvas);
    m_isShown = true;
}

QPoint CrossHair::position(const QSize& canvas) const
{
    if (!m_isStarted)
        return {canvas.width() / 2, canvas.height() / 2};
    return {qBound(0, m_position.x(), canvas.width()), qBound(0, m_position.y(), canvas.height())};
}

/// With its position, as devices count it, on the side where there is room.
void CrossHair::draw(Gdiplus::Graphics& graphics, const QSize& canvas) const
{
    if (!m_isShown || canvas.isEmpty())
        return;
    const QPoint at = position(canvas);
    paintArms(graphics, Gdiplus::Pen(Gdiplus::Color(kEdge), 4), at, 1);
    paintArms(graphics, Gdiplus::Pen(Gdiplus::Color(kInk), 2), at, 0);
    const QPoint place = DrawGeometry::toNormalized(at, canvas).value_or(QPoint());
    const QString text = QStringLiteral("%1, %2").arg(place.x()).arg(place.y());
    Gdiplus::RectF box;
    const Gdiplus::Font& font = LabelFont::font();
    graphics.MeasureString(LabelFont::wide(text), -1, &font, Gdiplus::PointF(0, 0), &box);
    const bool isRoomRight = float(at.x() + kArm + kTextGap) + box.Width < float(canvas.width());
    const bool isRoomBelow = float(at.y() + kTextGap) + box.Height < float(canvas.height());
    box.X = isRoomRight ? float(at.x() + kTextGap) : float(at.x() - kTextGap) - box.Width;
    box.Y = isRoomBelow ? float(at.y() + kTextGap) : float(at.y() - kTextGap) - box.Height;
    const Gdiplus::SolidBrush ground{Gdiplus::Color(kEdge)};
    graphics.FillRectangle(&ground, box.X, box.Y, box.Width, box.Height);
    const Gdiplus::StringFormat format;
    const Gdiplus::SolidBrush ink{Gdiplus::Color(kInk)};
    graphics.DrawString(LabelFont::wide(text), -1, &font, box, &format, &ink);
}
