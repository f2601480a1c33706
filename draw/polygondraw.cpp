#include "draw/polygondraw.h"

#include "draw/closedoutline.h"
#include "draw/drawgeometry.h"
#include "draw/figurepainter.h"

#include <QMutexLocker>

PolygonDraw::PolygonDraw() : BaseDraw(BaseDrawType::Polygon) {}

bool PolygonDraw::addPoint(int x, int y)
{
    const QMutexLocker lock(&mutex());
    const QPoint next = normalized({x, y});
    if (!DrawGeometry::newEdgeCrossings(points(), next).isEmpty() ||
        !DrawGeometry::closingEdgeCrossings(points(), next).isEmpty())
        return true;
    return appendCanvasPoint({x, y});
}

std::unique_ptr<Gdiplus::GraphicsPath> PolygonDraw::getForbidenArea() const
{
    const QMutexLocker lock(&mutex());
    if (!isFinishedLocked())
        return nullptr;
    auto area = std::make_unique<Gdiplus::GraphicsPath>(Gdiplus::FillModeAlternate);
    addCanvasOutline(*area, canvasSizeLocked());
    addClosedOutline(*area, canvasPointsLocked());
    return area;
}

void PolygonDraw::paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
                        const std::optional<QPoint>& canvasMovePoint) const
{
    painter.polyline(canvasPoints);
    if (canvasMovePoint) {
        painter.rubberBand({canvasPoints.last(), *canvasMovePoint},
                           DrawGeometry::newEdgeCrossings(canvasPoints, *canvasMovePoint));
        if (canvasPoints.size() > 1)
            painter.rubberBand({*canvasMovePoint, canvasPoints.first()},
                               DrawGeometry::closingEdgeCrossings(canvasPoints, *canvasMovePoint));
    }
    if (!isFinishedLocked())
        return;
    painter.line({canvasPoints.last(), canvasPoints.first()});
    paintLabels(painter, canvasPoints);
}

void PolygonDraw::paintLabels(const FigurePainter& painter,
                              const QVector<QPoint>& canvasPoints) const
{
    const QLine firstEdge(canvasPoints[0], canvasPoints[1]);
    if (edgeLabelMode() != EdgeLabelMode::LengthAndWidth) {
        painter.drawLabel(label(), firstEdge);
        return;
    }
    painter.drawLabel(tr("Length"), firstEdge);
    if (canvasPoints.size() > 2)
        painter.drawLabel(tr("Width"), {canvasPoints[1], canvasPoints[2]});
}
