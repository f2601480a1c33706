#include "draw/vehiclelanedraw.h"

#include "draw/canvasfigure.h"
#include "draw/drawgeometry.h"
#include "draw/figurepainter.h"
#include "draw/forbidenarea.h"

std::unique_ptr<Gdiplus::GraphicsPath> VehicleLaneDraw::getForbidenArea() const
{
    const CanvasFigure drawn = canvasFigure();
    const QVector<QPoint>& lane = drawn.points();
    if (lane.size() != 3)
        return nullptr;
    auto area = std::make_unique<Gdiplus::GraphicsPath>(Gdiplus::FillModeAlternate);
    ForbidenArea::addOutline(
        *area, DrawGeometry::laneForbiddenPolygon(lane[0], lane[1], lane[2], drawn.canvasSize()));
    return area;
}

void VehicleLaneDraw::getPoints(QVector<QPoint>& points) const
{
    const QVector<QPoint> lane = figure().points();
    if (lane.size() == 4 && DrawGeometry::side(lane[0], lane[1], lane[2]) < 0)
        points += lane.mid(2) + lane.mid(0, 2);
    else
        points += lane;
}

void VehicleLaneDraw::paint(const FigurePainter& painter, const CanvasFigure& shown) const
{
    painter.twoLines(shown.shownPoints());
    if (shown.points().size() >= 3)
        paintSideLabels(painter, shown);
}

void VehicleLaneDraw::paintSideLabels(const FigurePainter& painter, const CanvasFigure& shown)
{
    const QVector<QPoint>& points = shown.points();
    const int side = DrawGeometry::side(points[0], points[1], points[2]);
    if (points.size() == 3) {
        painter.drawLabel(side >= 0 ? tr("Left") : tr("Right"), shown.firstEdge());
    } else if (side != 0) {
        painter.drawLabel(side > 0 ? tr("Left") : tr("Right"), shown.firstEdge());
        painter.drawLabel(side > 0 ? tr("Right") : tr("Left"), {points[2], points[3]});
    }
}
