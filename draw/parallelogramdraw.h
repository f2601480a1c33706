#pragma once

#include "draw/basedraw.h"

/**
 * A parallelogram over the edge of its first two points; the third click completes it. An arrow
 * through its middle says in which direction it is crossed.
 */
class ParallelogramDraw final : public BaseDraw
{
public:
    using BaseDraw::BaseDraw;

    int clicksNeeded() const override;

protected:
    QVector<QPoint> clicked(const CanvasFigure& drawn, const QPoint& canvasPoint) const override;
    void paint(const FigurePainter& painter, const CanvasFigure& shown) const override;

private:
    static void paintDirection(const FigurePainter& painter, const CanvasFigure& shown);
};
