#include "draw/closedoutline.h"

#include "host/gdiplus.h"

#include <QPolygon>
#include <vector>

void addClosedOutline(Gdiplus::GraphicsPath& path, const QPolygonF& points)
{
    if (points.size() < 2)
        return;
    std::vector<Gdiplus::PointF> outline;
    outline.reserve(std::size_t(points.size()) + 1);
    for (const QPointF& point : points)
        outline.emplace_back(float(point.x()), float(point.y()));
    outline.push_back(outline.front());
    path.AddPolygon(outline.data(), int(outline.size()));
}

void addClosedOutline(Gdiplus::GraphicsPath& path, const QVector<QPoint>& points)
{
    addClosedOutline(path, QPolygonF(QPolygon(points)));
}

void addCanvasOutline(Gdiplus::GraphicsPath& path, const QSize& canvasSize)
{
    path.AddRectangle(Gdiplus::RectF(0, 0, float(canvasSize.width()), float(canvasSize.height())));
}
