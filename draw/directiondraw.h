#pragma once

#include "draw/basedraw.h"

/**
 * An arrow that shows a direction of movement: from its first point to its second one, where the
 * head is. It has no label.
 */
class DirectionDraw final : public BaseDraw
{
public:
    using BaseDraw::BaseDraw;

protected:
    void paint(const FigurePainter& painter, const CanvasFigure& shown) const override;
};
