#pragma once

#include "host/gdiplus/basetypes.h"

/// Points and rectangles, in the coordinates that are drawn with.
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

class PointF
{
public:
    constexpr PointF() = default;
    constexpr PointF(REAL x, REAL y) : X(x), Y(y) {}

    REAL X = 0;
    REAL Y = 0;
};

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
