#include "draw/polygondraw.h"

#include "draw/canvasfigure.h"
#include "draw/drawgeometry.h"
#include "draw/figurepainter.h"
#include "draw/forbidenarea.h"

using DrawGeometry::closingEdgeCrossings;
using DrawGeometry::newEdgeCrossings;

std::unique_ptr<Gdiplus::GraphicsPath> PolygonDraw::getForbidenArea() const
{
    const CanvasFigure shown = canvasFigure();
    if (!shown.figure().isFinished())
        return nullptr;
    auto area = std::make_unique<Gdiplus::GraphicsPath>(Gdiplus::FillModeAlternate);
    ForbidenArea::addCanvas(*area, shown.canvasSize());
    ForbidenArea::addOutline(*area, QPolygon(shown.outline()));
    return area;
}

QVector<QPoint> PolygonDraw::clicked(const CanvasFigure& drawn, const QPoint& canvasPoint) const
{
    const QPoint next = drawn.normalized(canvasPoint);
    const QVector<QPoint>& points = drawn.figure().points();
    const bool crosses =
        !newEdgeCrossings(points, next).isEmpty() || !closingEdgeCrossings(points, next).isEmpty();
    return crosses ? QVector<QPoint>() : QVector<QPoint>{next};
}

void PolygonDraw::paint(const FigurePainter& painter, const CanvasFigure& shown) const
{
    const QVector<QPoint>& points = shown.points();
    if (shown.figure().isFinished()) {
        painter.polyline(shown.outline());
        return paintLabels(painter, shown);
    }
    painter.polyline(points);
    if (const std::optional<QPoint>& next = shown.movePoint()) {
        painter.rubberBand({points.last(), *next}, newEdgeCrossings(points, *next));
        if (points.size() > 1)
            painter.rubberBand({*next, points.first()}, closingEdgeCrossings(points, *next));
    }
}

void PolygonDraw::paintLabels(const FigurePainter& painter, const CanvasFigure& shown)
{
    if (shown.figure().edgeLabelMode() != EdgeLabelMode::LengthAndWidth)
        return painter.name(shown);
    painter.drawLabel(tr("Length"), shown.firstEdge());
    if (shown.points().size() > 2)
        painter.drawLabel(tr("Width"), {shown.points()[1], shown.points()[2]});
}
