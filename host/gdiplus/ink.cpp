#include "host/gdiplus/ink.h"

#include <QVector>

#include <cmath>

namespace Gdiplus
{

namespace
{

/// Dash and gap lengths in pen widths; empty for a solid line.
QVector<qreal> dashPattern(DashStyle style)
{
    switch (style) {
    case DashStyleSolid:
        return {};
    case DashStyleDash:
        return {3, 1};
    case DashStyleDot:
        return {1, 1};
    case DashStyleDashDot:
        return {3, 1, 1, 1};
    case DashStyleDashDotDot:
        return {3, 1, 1, 1, 1, 1};
    }
    return {};
}

} // namespace

Brush::~Brush() = default;

Brush::Brush(const QBrush& brush) : m_brush(brush) {}

SolidBrush::SolidBrush(const Color& color) : Brush(QColor::fromRgba(color.GetValue())) {}

Pen::Pen(const Color& color, REAL width)
{
    // A line is never thinner than one pixel; Qt's own pen of width 0 would ignore the transform.
    const bool valid = std::isfinite(width) && width >= 0;
    m_status = valid ? Ok : InvalidParameter;
    m_pen = QPen(QColor::fromRgba(color.GetValue()), valid && width > 1 ? qreal(width) : 1.0,
                 Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
}

Status Pen::SetDashStyle(DashStyle dashStyle)
{
    if (dashStyle < DashStyleSolid || dashStyle > DashStyleDashDotDot)
        return InvalidParameter;
    m_dashStyle = dashStyle;
    if (dashStyle == DashStyleSolid)
        m_pen.setStyle(Qt::SolidLine);
    else
        m_pen.setDashPattern(dashPattern(dashStyle));
    return Ok;
}

Status Pen::SetLineCap(LineCap startCap, LineCap endCap, DashCap dashCap)
{
    const bool isRound = startCap == LineCapRound && dashCap == DashCapRound;
    const bool isFlat = startCap == LineCapFlat && dashCap == DashCapFlat;
    if (startCap != endCap || !(isRound || isFlat))
        return InvalidParameter;
    m_pen.setCapStyle(isRound ? Qt::RoundCap : Qt::FlatCap);
    return Ok;
}

} // namespace Gdiplus
