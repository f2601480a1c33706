#pragma once

#include "host/api/kqhostexport.h"
#include "host/gdiplus/basetypes.h"
#include "host/gdiplus/color.h"

#include <QPen>

namespace Gdiplus
{

/// A pen of flat caps and mitre joins, its width in the coordinates drawn with.
class KQHOST_EXPORT Pen
{
public:
    explicit Pen(const Color& color, REAL width = 1.0F);
    Pen(const Pen&) = delete;
    Pen& operator=(const Pen&) = delete;

    Status SetDashStyle(DashStyle dashStyle);
    DashStyle GetDashStyle() const { return m_dashStyle; }
    Status GetLastStatus() const { return m_status; }

private:
    friend class Graphics;

    QPen m_pen;
    DashStyle m_dashStyle = DashStyleSolid;
    Status m_status = Ok;
};

} // namespace Gdiplus
