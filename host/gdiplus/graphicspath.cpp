#include "host/gdiplus/graphicspath.h"

#include <algorithm>
#include <cmath>

namespace Gdiplus
{

namespace
{

/// Moves a point that is exactly on an edge to the right of it: into the area at a left-hand edge,
/// out of it at a right-hand one.
constexpr qreal kEdgeShift = 1.0 / 65536;

} // namespace

GraphicsPath::GraphicsPath(FillMode fillMode)
{
    m_path.setFillRule(fillMode == FillModeWinding ? Qt::WindingFill : Qt::OddEvenFill);
}

Status GraphicsPath::AddPolygon(const Point* points, INT count)
{
    return addPolygon(points, count);
}

Status GraphicsPath::AddPolygon(const PointF* points, INT count)
{
    return addPolygon(points, count);
}

Status GraphicsPath::AddRectangle(const Rect& rect)
{
    if (rect.Width <= 0 || rect.Height <= 0)
        return Ok;
    m_path.addRect(rect.X, rect.Y, rect.Width, rect.Height);
    m_pointCount += 4;
    return Ok;
}

Status GraphicsPath::AddRectangle(const RectF& rect)
{
    if (!std::isfinite(rect.X) || !std::isfinite(rect.Y) || !std::isfinite(rect.Width) ||
        !std::isfinite(rect.Height))
        return InvalidParameter;
    if (rect.Width <= 0 || rect.Height <= 0)
        return Ok;
    m_path.addRect(qreal(rect.X), qreal(rect.Y), qreal(rect.Width), qreal(rect.Height));
    m_pointCount += 4;
    return Ok;
}

Status GraphicsPath::Reset()
{
    m_path = {};
    m_pointCount = 0;
    return Ok;
}

BOOL GraphicsPath::IsVisible(INT x, INT y) const
{
    return m_path.contains(QPointF(x + kEdgeShift, y));
}

template<typename P>
Status GraphicsPath::addPolygon(const P* points, INT count)
{
    const auto isFinite = [](const P& p) {
        return std::isfinite(qreal(p.X)) && std::isfinite(qreal(p.Y));
    };
    if (!points || count < 3 || !std::all_of(points, points + count, isFinite))
        return InvalidParameter;
    m_path.moveTo(qreal(points[0].X), qreal(points[0].Y));
    for (INT i = 1; i < count; ++i)
        m_path.lineTo(qreal(points[i].X), qreal(points[i].Y));
    m_path.closeSubpath();
    m_pointCount += count;
    return Ok;
}

} // namespace Gdiplus
