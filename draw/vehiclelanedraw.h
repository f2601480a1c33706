#pragma once

#include "draw/basedraw.h"

#include <QCoreApplication>

/**
 * A vehicle lane between two lane lines, p0–p1 and p2–p3, drawn in either order. Its points are
 * reported with the left line first.
 */
class VehicleLaneDraw final : public BaseDraw
{
    Q_DECLARE_TR_FUNCTIONS(VehicleLaneDraw)

public:
    VehicleLaneDraw();

    std::unique_ptr<Gdiplus::GraphicsPath> getForbidenArea() const override;
    void getPoints(QVector<QPoint>& points) const override;

protected:
    void paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
               const std::optional<QPoint>& canvasMovePoint) const override;

private:
    void paintSideLabels(const FigurePainter& painter, const QVector<QPoint>& canvasPoints) const;
};
