#pragma once

#include "host/gdiplus/basetypes.h"

namespace Gdiplus
{

class Rect
{
public:
    constexpr Rect() = default;
    constexpr Rect(INT x, INT y, INT width, INT height) : X(x), Y(y), Width(width), Height(height)
    {
    }

    INT X = 0;
    INT Y = 0;
    INT Width = 0;
    INT Height = 0;
};

} // namespace Gdiplus
