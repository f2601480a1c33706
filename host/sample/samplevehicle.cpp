#include "host/sample/samplevehicle.h"

#include "host/sample/streetview.h"

#include <QPainter>
#include <QtMath>

using namespace UICommonMdl::streetview;

namespace UICommonMdl
{
namespace
{

constexpr QRgb kGlass = 0xFF39464F;
constexpr QRgb kSideGlass = 0xFF4A5963;
constexpr QRgb kTyre = 0xFF1F2224;
constexpr QRgb kRearLamp = 0xFFC8322B;
constexpr QRgb kFrontLamp = 0xFFFFF6D8;
constexpr QRgb kPlate = 0xFFE9E9E4;
constexpr qreal kGroundClearance = 0.28;

struct Shape {
    qreal length;
    qreal width;
    qreal waist;  ///< height of the body
    qreal height; ///< height of the roof
};

Shape shapeOf(SampleVehicle::Kind kind)
{
    switch (kind) {
    case SampleVehicle::Kind::Car:
        break;
    case SampleVehicle::Kind::Van:
        return {5.6, 1.95, 1.15, 2.3};
    case SampleVehicle::Kind::Bus:
        return {11.0, 2.5, 1.25, 3.0};
    }
    return {4.4, 1.8, 0.88, 1.46};
}

BoxColors painted(const QColor& color)
{
    return {color.lighter(112), color, color.darker(122)};
}

/// The body's corners at the waist and the ground, moved to the vehicle's place.
Box bodyBox(const Shape& shape, qreal x, qreal z)
{
    const qreal half = shape.width / 2;
    Box box{{x - half, kGroundClearance, z}, {x + half, shape.waist, z + shape.length}};
    box.sideInset = 0.05;
    return box;
}

Box cabinBox(const SampleVehicle& vehicle, const Shape& shape, const Box& body)
{
    const bool isCar = vehicle.kind == SampleVehicle::Kind::Car;
    const qreal bonnet = isCar ? 1.15 : 0.15;
    const qreal boot = isCar ? 0.45 : 0.02;
    Box box = body;
    box.low.y = shape.waist;
    box.high.y = shape.height;
    box.low.x += body.sideInset;
    box.high.x -= body.sideInset;
    box.low.z += vehicle.comesNearer ? bonnet : boot;
    box.high.z -= vehicle.comesNearer ? boot : bonnet;
    box.sideInset = isCar ? 0.2 : 0.08;
    box.nearInset = isCar ? 0.6 : 0.12;
    box.farInset = isCar ? 0.6 : 0.12;
    return box;
}

void paintWheel(QPainter& painter, qreal x, qreal z)
{
    constexpr qreal kRadius = 0.34;
    constexpr int kCorners = 12;
    QVector<Place> rim;
    for (int i = 0; i < kCorners; ++i) {
        const qreal angle = 2 * M_PI * i / kCorners;
        rim.append({x, kRadius + kRadius * qSin(angle), z + kRadius * qCos(angle)});
    }
    paintFace(painter, QColor::fromRgba(kTyre), rim);
}

void paintWheels(QPainter& painter, const Box& body)
{
    const qreal length = body.high.z - body.low.z;
    for (const qreal z : {body.high.z - 0.2 * length, body.low.z + 0.2 * length}) {
        if (body.high.x < 0)
            paintWheel(painter, body.high.x, z);
        else if (body.low.x > 0)
            paintWheel(painter, body.low.x, z);
    }
    for (const qreal x : {body.low.x + 0.05, body.high.x - 0.3})
        paintFace(painter, QColor::fromRgba(kTyre),
                  {{x, 0, body.low.z},
                   {x + 0.25, 0, body.low.z},
                   {x + 0.25, 0.4, body.low.z},
                   {x, 0.4, body.low.z}});
}

/// A rectangle on the body's near end: from the left side @p x0 to @p x1, metres.
void paintOnEnd(QPainter& painter, QRgb color, const Box& body, const QRectF& at)
{
    const qreal x = body.low.x + at.x();
    const qreal y = body.low.y + at.y();
    const qreal z = body.low.z;
    paintFace(painter, QColor::fromRgba(color),
              {{x, y, z},
               {x + at.width(), y, z},
               {x + at.width(), y + at.height(), z},
               {x, y + at.height(), z}});
}

void paintEnd(QPainter& painter, const SampleVehicle& vehicle, const Box& body)
{
    const qreal width = body.high.x - body.low.x;
    const qreal lampY = (body.high.y - body.low.y) * 0.55;
    const QRgb lamp = vehicle.comesNearer ? kFrontLamp : kRearLamp;
    paintOnEnd(painter, lamp, body, {0.1, lampY, 0.34, 0.16});
    paintOnEnd(painter, lamp, body, {width - 0.44, lampY, 0.34, 0.16});
    paintOnEnd(painter, kPlate, body, {width / 2 - 0.26, 0.1, 0.52, 0.12});
    if (vehicle.comesNearer)
        paintOnEnd(painter, kTyre, body, {width / 2 - 0.42, lampY, 0.84, 0.13});
}

/// The cabin's side, with a pillar between its windows.
void paintPillars(QPainter& painter, const QColor& color, const Box& cabin)
{
    if (cabin.low.x <= 0 && cabin.high.x >= 0)
        return;
    const bool seenFromLeft = cabin.low.x > 0;
    const qreal foot = seenFromLeft ? cabin.low.x : cabin.high.x;
    const qreal head = seenFromLeft ? foot + cabin.sideInset : foot - cabin.sideInset;
    const qreal length = cabin.high.z - cabin.low.z;
    const int windows = qMax(2, qRound(length / 1.6));
    for (int i = 1; i < windows; ++i) {
        const qreal z = cabin.low.z + length * i / windows;
        paintFace(painter, color,
                  {{foot, cabin.low.y, z},
                   {foot, cabin.low.y, z + 0.12},
                   {head, cabin.high.y, z + 0.12},
                   {head, cabin.high.y, z}});
    }
}

} // namespace

qreal vehicleLength(SampleVehicle::Kind kind)
{
    return shapeOf(kind).length;
}

void paintVehicle(QPainter& painter, const SampleVehicle& vehicle, qreal x, qreal z)
{
    const Shape shape = shapeOf(vehicle.kind);
    const Box body = bodyBox(shape, x, z);
    const Box cabin = cabinBox(vehicle, shape, body);
    const BoxColors paint = painted(vehicle.color);
    // The sun stands to the left, so the shadow falls a little to the right.
    paintGround(painter, QColor(12, 18, 22, 105), body.low.x + 0.02, body.high.x + 0.55, z - 0.15,
                z + shape.length + 0.1);
    paintWheels(painter, body);
    paintBox(painter, paint, body);
    paintEnd(painter, vehicle, body);
    const QColor glass = QColor::fromRgba(kGlass);
    paintBox(painter, {paint.top, glass, QColor::fromRgba(kSideGlass)}, cabin);
    paintPillars(painter, paint.side, cabin);
}

} // namespace UICommonMdl
