#include "draw/vehiclelanedraw.h"

#include "draw/closedoutline.h"
#include "draw/drawgeometry.h"
#include "draw/figurepainter.h"

#include <QMutexLocker>

VehicleLaneDraw::VehicleLaneDraw() : BaseDraw(BaseDrawType::VehicleLane, 4, 4) {}

std::unique_ptr<Gdiplus::GraphicsPath> VehicleLaneDraw::getForbidenArea() const
{
    const QMutexLocker lock(&mutex());
    if (points().size() != 3)
        return nullptr;
    const QVector<QPoint> lane = canvasPointsLocked();
    auto area = std::make_unique<Gdiplus::GraphicsPath>(Gdiplus::FillModeAlternate);
    addClosedOutline(
        *area, DrawGeometry::laneForbiddenPolygon(lane[0], lane[1], lane[2], canvasSizeLocked()));
    return area;
}

void VehicleLaneDraw::getPoints(QVector<QPoint>& reported) const
{
    const QMutexLocker lock(&mutex());
    const QVector<QPoint>& lane = points();
    if (lane.size() == 4 && DrawGeometry::side(lane[0], lane[1], lane[2]) < 0)
        reported += QVector<QPoint>{lane[2], lane[3], lane[0], lane[1]};
    else
        reported += lane;
}

void VehicleLaneDraw::paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
                            const std::optional<QPoint>& canvasMovePoint) const
{
    const QVector<QPoint> known = withMovePoint(canvasPoints, canvasMovePoint);
    painter.line({known[0], known[1]});
    if (known.size() >= 4)
        painter.line({known[2], known[3]});
    if (canvasPoints.size() >= 3)
        paintSideLabels(painter, canvasPoints);
}

void VehicleLaneDraw::paintSideLabels(const FigurePainter& painter,
                                      const QVector<QPoint>& canvasPoints) const
{
    const int side = DrawGeometry::side(canvasPoints[0], canvasPoints[1], canvasPoints[2]);
    const QLine first(canvasPoints[0], canvasPoints[1]);
    if (canvasPoints.size() == 3) {
        painter.drawLabel(side >= 0 ? tr("Left") : tr("Right"), first);
    } else if (side != 0) {
        painter.drawLabel(side > 0 ? tr("Left") : tr("Right"), first);
        painter.drawLabel(side > 0 ? tr("Right") : tr("Left"), {canvasPoints[2], canvasPoints[3]});
    }
}
