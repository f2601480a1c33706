#pragma once

#include <QColor>
#include <QPolygonF>

class QPainter;

/**
 * The sample camera's view: a camera over the middle of a road, looking along it. Places are in
 * metres: x to the right of the road's middle, y above the ground, z away from the camera.
 */
namespace UICommonMdl::streetview
{

constexpr qreal kHorizon = 216; ///< picture pixels from the top

struct Place {
    qreal x;
    qreal y;
    qreal z;
};

/// Two opposite corners of a box, and by how much its top is drawn in at the sides and ends.
struct Box {
    Place low;
    Place high;
    qreal sideInset = 0;
    qreal nearInset = 0;
    qreal farInset = 0;
};

/// Colours of the faces that the camera can see.
struct BoxColors {
    QColor top;
    QColor end;
    QColor side;
};

/// Picture pixels; places behind the camera are taken as just in front of it.
QPointF project(const Place& place);
/// Picture pixels a metre at distance @p z.
qreal scaleAt(qreal z);
/// @p color as it looks at distance @p z: the air takes it away bit by bit.
QColor hazed(const QColor& color, qreal z);

void paintFace(QPainter& painter, const QColor& color, const QVector<Place>& corners);
/// A rectangle on the ground between two x and two z.
void paintGround(QPainter& painter, const QColor& color, qreal x0, qreal x1, qreal z0, qreal z1);
void paintBox(QPainter& painter, const BoxColors& colors, const Box& box);
/// A soft dark spot on the ground, radii in metres.
void paintShadow(QPainter& painter, const Place& middle, qreal radiusX, qreal radiusZ);

} // namespace UICommonMdl::streetview
