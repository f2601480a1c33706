#include "host/gdiplus/brush.h"

namespace Gdiplus
{

Brush::~Brush() = default;

Brush::Brush(const QBrush& brush) : m_brush(brush) {}

SolidBrush::SolidBrush(const Color& color) : Brush(QColor::fromRgba(color.GetValue())) {}

} // namespace Gdiplus
