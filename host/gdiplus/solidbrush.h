#pragma once

#include "host/gdiplus/brush.h"
#include "host/gdiplus/color.h"

namespace Gdiplus
{

class KQHOST_EXPORT SolidBrush : public Brush
{
public:
    explicit SolidBrush(const Color& color);
};

} // namespace Gdiplus
