#pragma once

#include "draw/basedraw.h"

/**
 * A staff of known length, drawn at any angle. The length is a value of the entry, not the
 * figure's.
 */
class RulerDraw final : public BaseDraw
{
public:
    using BaseDraw::BaseDraw;

protected:
    void paint(const FigurePainter& painter, const CanvasFigure& shown) const override;
};
