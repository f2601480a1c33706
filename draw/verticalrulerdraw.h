#pragma once

#include "draw/basedraw.h"

/**
 * A staff that stands upright: its second point and its rubber band are kept above or below the
 * first, in the device's coordinates, whatever the canvas has pixels for.
 */
class VerticalRulerDraw final : public BaseDraw
{
public:
    using BaseDraw::BaseDraw;

protected:
    QVector<QPoint> clicked(const CanvasFigure& drawn, const QPoint& canvasPoint) const override;
    bool moved(const Figure& figure, QPoint& end) const override;
    void paint(const FigurePainter& painter, const CanvasFigure& shown) const override;
};
