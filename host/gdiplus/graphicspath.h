#pragma once

#include "host/api/kqhostexport.h"
#include "host/gdiplus/geometry.h"

#include <QPainterPath>

namespace Gdiplus
{

/// Closed outlines whose inside can be filled and asked for points.
class KQHOST_EXPORT GraphicsPath
{
public:
    explicit GraphicsPath(FillMode fillMode = FillModeAlternate);
    GraphicsPath(const GraphicsPath&) = delete;
    GraphicsPath& operator=(const GraphicsPath&) = delete;

    /// Fewer than three points add nothing and are an InvalidParameter.
    Status AddPolygon(const Point* points, INT count);
    Status AddPolygon(const PointF* points, INT count);
    /// A rectangle without an area adds nothing.
    Status AddRectangle(const Rect& rect);
    Status AddRectangle(const RectF& rect);
    /// Removes every outline and returns to alternate fill.
    Status Reset();

    INT GetPointCount() const { return m_pointCount; }
    /// Half open: points on left and top edges are inside, those on right and bottom edges are not.
    BOOL IsVisible(INT x, INT y) const;

private:
    friend class Graphics;

    template<typename P>
    Status addPolygon(const P* points, INT count);

    QPainterPath m_path;
    INT m_pointCount = 0;
};

} // namespace Gdiplus
