#pragma once

#include "host/api/kqhostexport.h"
#include "host/gdiplus/basetypes.h"

#include <QBrush>
#include <QPen>

/// What lines, areas and text are drawn with.
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

/// Base of what fills areas and text.
class KQHOST_EXPORT Brush
{
public:
    virtual ~Brush();
    Brush(const Brush&) = delete;
    Brush& operator=(const Brush&) = delete;

protected:
    explicit Brush(const QBrush& brush);

private:
    friend class Graphics;

    QBrush m_brush;
};

class KQHOST_EXPORT SolidBrush : public Brush
{
public:
    explicit SolidBrush(const Color& color);
};

/// A pen of mitre joins, and of flat caps at first; its width in the coordinates drawn with.
class KQHOST_EXPORT Pen
{
public:
    explicit Pen(const Color& color, REAL width = 1.0F);
    Pen(const Pen&) = delete;
    Pen& operator=(const Pen&) = delete;

    Status SetDashStyle(DashStyle dashStyle);
    /// The same cap at all ends, or InvalidParameter.
    Status SetLineCap(LineCap startCap, LineCap endCap, DashCap dashCap);
    DashStyle GetDashStyle() const { return m_dashStyle; }
    Status GetLastStatus() const { return m_status; }

private:
    friend class Graphics;

    QPen m_pen;
    DashStyle m_dashStyle = DashStyleSolid;
    Status m_status = Ok;
};

} // namespace Gdiplus
