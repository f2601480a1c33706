#pragma once

#include "host/gdiplus/basetypes.h"

namespace Gdiplus
{

class RectF
{
public:
    constexpr RectF() = default;
    constexpr RectF(REAL x, REAL y, REAL width, REAL height)
        : X(x), Y(y), Width(width), Height(height)
    {
    }

    REAL X = 0;
    REAL Y = 0;
    REAL Width = 0;
    REAL Height = 0;
};

} // namespace Gdiplus
