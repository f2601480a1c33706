#include "Protocol/copiedfigure.h"

#include "Protocol/ruleprotocolitem.h"
#include "draw/drawgeometry.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"

#include <algorithm>
#include <set>

namespace
{

constexpr int kWay = 256; // at a time

/// From the point that is farthest right and down to the edges of the picture.
QPoint roomOf(const std::vector<CopiedFigure>& figures)
{
    QPoint farthest(0, 0);
    for (const CopiedFigure& figure : figures) {
        for (const QPoint& point : figure.points + figure.directions)
            farthest = {qMax(farthest.x(), point.x()), qMax(farthest.y(), point.y())};
    }
    const auto left = [](int n) {
        return n < DrawGeometry::kNormalizedExtent ? DrawGeometry::kNormalizedExtent - n : 0;
    };
    return {left(farthest.x()), left(farthest.y())};
}

/// Kind and points, in an order of their own.
using Shape = std::vector<int>;

Shape shapeOf(BaseDrawType kind, const QVector<QPoint>& points, const QPoint& way = {})
{
    Shape shape{static_cast<int>(kind)};
    for (const QPoint& point : points) {
        shape.push_back(point.x() + way.x());
        shape.push_back(point.y() + way.y());
    }
    return shape;
}

} // namespace

QPoint wayToFreePlace(const std::vector<CopiedFigure>& figures, const DrawScene& canvas)
{
    const QPoint room = roomOf(figures);
    std::set<Shape> there;
    for (const DrawItem* other : canvas.getItemList(BaseDrawType::None, 0)) {
        if (const QVector<QPoint> points = other->value().points(); !points.isEmpty())
            there.insert(shapeOf(other->drawType(), points));
    }
    const auto isTaken = [&](const QPoint& way) {
        return std::any_of(figures.begin(), figures.end(), [&](const CopiedFigure& figure) {
            return there.count(shapeOf(figure.item->drawType(), figure.points, way)) > 0;
        });
    };
    QPoint way(0, 0);
    for (int far = kWay; way != room && isTaken(way); far += kWay)
        way = {qMin(far, room.x()), qMin(far, room.y())};
    return way;
}
