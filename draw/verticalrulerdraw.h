#pragma once

#include "draw/rulerdraw.h"

/**
 * A staff that stands upright: its second point and its rubber band are kept above or below the
 * first, in the device's coordinates, whatever the canvas has pixels for.
 */
class VerticalRulerDraw final : public RulerDraw
{
public:
    using RulerDraw::RulerDraw;

protected:
    QVector<QPoint> clicked(const CanvasFigure& drawn, const QPoint& canvasPoint) const override;
    bool moved(const Figure& figure, QPoint& end) const override;
};
