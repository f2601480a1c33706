#pragma once

#include "draw/basedraw.h"

/**
 * A staff of known length: a line with a tick across each of its two ends, and its label along
 * it. The length is a value of the entry, not the figure's.
 */
class RulerDraw : public BaseDraw
{
public:
    using BaseDraw::BaseDraw;

protected:
    void paint(const FigurePainter& painter, const CanvasFigure& shown) const override;
};
