#pragma once

#include "draw/basedraw.h"

#include <QCoreApplication>

/**
 * A vehicle lane between two lane lines, p0-p1 and p2-p3, drawn in either order. Its points are
 * reported with the left line first; the sides are named along the lines.
 */
class VehicleLaneDraw final : public BaseDraw
{
    Q_DECLARE_TR_FUNCTIONS(VehicleLaneDraw)

public:
    using BaseDraw::BaseDraw;
    std::unique_ptr<Gdiplus::GraphicsPath> getForbidenArea() const override;
    void getPoints(QVector<QPoint>& points) const override;

protected:
    void paint(const FigurePainter& painter, const CanvasFigure& shown) const override;

private:
    static void paintSideLabels(const FigurePainter& painter, const CanvasFigure& shown);
};
