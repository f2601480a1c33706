#pragma once

#include "draw/basedraw.h"

/**
 * A trip line, open at its ends, with an arrow across each segment for the crossing direction. A
 * point is refused when the line would cross itself.
 */
class DirectionLineDraw final : public BaseDraw
{
public:
    using BaseDraw::BaseDraw;

protected:
    QVector<QPoint> clicked(const CanvasFigure& drawn, const QPoint& canvasPoint) const override;
    void paint(const FigurePainter& painter, const CanvasFigure& shown) const override;
};
