#pragma once

#include "draw/basedraw.h"

/**
 * Two segments, between the first two points and between the last two. Of no kind of its own, so
 * that no template can ask for it.
 */
class CrossTestDraw final : public BaseDraw
{
public:
    CrossTestDraw();

protected:
    void paint(const FigurePainter& painter, const CanvasFigure& shown) const override;
};
