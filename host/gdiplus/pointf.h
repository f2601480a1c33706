#pragma once

#include "host/gdiplus/basetypes.h"

namespace Gdiplus
{

class PointF
{
public:
    constexpr PointF() = default;
    constexpr PointF(REAL x, REAL y) : X(x), Y(y) {}

    REAL X = 0;
    REAL Y = 0;
};

} // namespace Gdiplus
