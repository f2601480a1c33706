#pragma once

#include "draw/basedraw.h"

/**
 * A labelled line without ticks that measures a width. It may be drawn at any angle: only its
 * ends count.
 */
class HorizontalRulerDraw final : public BaseDraw
{
public:
    using BaseDraw::BaseDraw;

protected:
    void paint(const FigurePainter& painter, const CanvasFigure& shown) const override;
};
