#pragma once

#include "host/gdiplus/basetypes.h"

namespace Gdiplus
{

class Point
{
public:
    constexpr Point() = default;
    constexpr Point(INT x, INT y) : X(x), Y(y) {}

    INT X = 0;
    INT Y = 0;
};

} // namespace Gdiplus
