#pragma once

#include "host/gdiplus/basetypes.h"

namespace Gdiplus
{

/// A colour with alpha, opaque black when nothing is given.
class Color
{
public:
    constexpr Color() = default;
    constexpr Color(ARGB argb) : m_argb(argb) {}
    constexpr Color(BYTE r, BYTE g, BYTE b) : Color(255, r, g, b) {}
    constexpr Color(BYTE a, BYTE r, BYTE g, BYTE b)
        : m_argb(ARGB{a} << 24 | ARGB{r} << 16 | ARGB{g} << 8 | b)
    {
    }

    constexpr BYTE GetA() const { return BYTE(m_argb >> 24); }
    constexpr BYTE GetR() const { return BYTE(m_argb >> 16); }
    constexpr BYTE GetG() const { return BYTE(m_argb >> 8); }
    constexpr BYTE GetB() const { return BYTE(m_argb); }
    constexpr ARGB GetValue() const { return m_argb; }

private:
    ARGB m_argb = 0xFF000000;
};

} // namespace Gdiplus
