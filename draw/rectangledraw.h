#pragma once

#include "draw/basedraw.h"

/**
 * An upright rectangle, painted as the outline between its two points, which are opposite
 * corners in either order.
 */
class RectangleDraw final : public BaseDraw
{
public:
    using BaseDraw::BaseDraw;

protected:
    void paint(const FigurePainter& painter, const CanvasFigure& shown) const override;
};
