#include "host/sample/streetview.h"

#include <QPainter>

namespace UICommonMdl::streetview
{
namespace
{

constexpr qreal kMiddle = 616; ///< where the road vanishes, picture pixels from the left
constexpr qreal kFocus = 900;  ///< picture pixels
constexpr qreal kCameraHeight = 7.5;
constexpr qreal kNearest = 3;
constexpr qreal kHazeDistance = 260;
constexpr qreal kThickestHaze = 0.62;
constexpr QRgb kHaze = 0xFFCBD6DA;
constexpr int kShadowAlpha = 46;

qreal mixed(qreal from, qreal to, qreal share)
{
    return from + (to - from) * share;
}

} // namespace

qreal scaleAt(qreal z)
{
    return kFocus / qMax(z, kNearest);
}

QPointF project(const Place& place)
{
    const qreal scale = scaleAt(place.z);
    return {kMiddle + place.x * scale, kHorizon + (kCameraHeight - place.y) * scale};
}

QColor hazed(const QColor& color, qreal z)
{
    const QColor haze = QColor::fromRgba(kHaze);
    const qreal share = qBound(0.0, z / kHazeDistance, kThickestHaze);
    return QColor::fromRgbF(mixed(color.redF(), haze.redF(), share),
                            mixed(color.greenF(), haze.greenF(), share),
                            mixed(color.blueF(), haze.blueF(), share), color.alphaF());
}

void paintFace(QPainter& painter, const QColor& color, const QVector<Place>& corners)
{
    QPolygonF polygon;
    for (const Place& corner : corners)
        polygon.append(project(corner));
    painter.setPen(Qt::NoPen);
    painter.setBrush(hazed(color, corners.isEmpty() ? 0 : corners.first().z));
    painter.drawPolygon(polygon);
}

void paintGround(QPainter& painter, const QColor& color, qreal x0, qreal x1, qreal z0, qreal z1)
{
    paintFace(painter, color, {{x0, 0, z0}, {x1, 0, z0}, {x1, 0, z1}, {x0, 0, z1}});
}

void paintBox(QPainter& painter, const BoxColors& colors, const Box& box)
{
    const auto& [low, high, sideInset, nearInset, farInset] = box;
    const qreal left = low.x + sideInset;
    const qreal right = high.x - sideInset;
    const qreal front = low.z + nearInset;
    const qreal back = high.z - farInset;
    const bool seenFromLeft = low.x > 0;
    const qreal foot = seenFromLeft ? low.x : high.x;
    const qreal head = seenFromLeft ? left : right;
    if (seenFromLeft || high.x < 0)
        paintFace(painter, colors.side,
                  {{foot, low.y, low.z},
                   {foot, low.y, high.z},
                   {head, high.y, back},
                   {head, high.y, front}});
    paintFace(painter, colors.top,
              {{left, high.y, front},
               {right, high.y, front},
               {right, high.y, back},
               {left, high.y, back}});
    paintFace(painter, colors.end,
              {{low.x, low.y, low.z},
               {high.x, low.y, low.z},
               {right, high.y, front},
               {left, high.y, front}});
}

void paintShadow(QPainter& painter, const Place& middle, qreal radiusX, qreal radiusZ)
{
    const qreal top = project({middle.x, 0, middle.z + radiusZ}).y();
    const qreal bottom = project({middle.x, 0, middle.z - radiusZ}).y();
    const QPointF centre(project(middle).x(), (top + bottom) / 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(10, 20, 25, kShadowAlpha));
    painter.drawEllipse(centre, radiusX * scaleAt(middle.z), (bottom - top) / 2);
}

} // namespace UICommonMdl::streetview
