#include "host/gdiplus/solidbrush.h"

namespace Gdiplus
{

SolidBrush::SolidBrush(const Color& color) : Brush(QColor::fromRgba(color.GetValue())) {}

} // namespace Gdiplus
