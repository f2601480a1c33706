#include "host/gdiplus/brush.h"

namespace Gdiplus
{

Brush::~Brush() = default;

Brush::Brush(const QBrush& brush) : m_brush(brush) {}

} // namespace Gdiplus
