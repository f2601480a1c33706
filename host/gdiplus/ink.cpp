#include "host/gdiplus/ink.h"

#include <cmath>

namespace Gdiplus
{

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

} // namespace Gdiplus
