#include "host/sample/samplestreet.h"

#include "host/sample/samplecamerasource.h"
#include "host/sample/samplehouse.h"
#include "host/sample/sampletree.h"
#include "host/sample/samplevehicle.h"
#include "host/sample/streetview.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

using namespace UICommonMdl::streetview;

namespace UICommonMdl
{
namespace
{

constexpr qreal kPictureWidth = SampleCameraSource::kWidth;
constexpr qreal kPictureHeight = SampleCameraSource::kHeight;
constexpr qreal kNear = 9;  ///< metres; the picture's lower edge is farther
constexpr qreal kFar = 420; ///< metres; the road goes out of sight
constexpr qreal kRoadHalf = 7;
constexpr qreal kKerb = 0.3;
constexpr qreal kBayEnd = 9.6;
constexpr qreal kLeftWalkEnd = -10.6;
constexpr qreal kRightWalkEnd = 12.9;
constexpr QRgb kMarking = 0xFFE4E4DE;
constexpr QRgb kPavement = 0xFFB3AFA7;
constexpr QRgb kPavementJoint = 0x30605C56;
constexpr QRgb kKerbStone = 0xFFD2CFC8;

QColor rgba(QRgb color)
{
    return QColor::fromRgba(color);
}

/// Fills the full width between two heights, from one colour to the other.
void fillBand(QPainter& painter, qreal top, qreal bottom, QRgb upper, QRgb lower)
{
    QLinearGradient gradient(0, top, 0, bottom);
    gradient.setColorAt(0, rgba(upper));
    gradient.setColorAt(1, rgba(lower));
    painter.fillRect(QRectF(0, top, kPictureWidth, bottom - top), gradient);
}

void paintCloud(QPainter& painter, const QPointF& middle, qreal size)
{
    QPainterPath cloud;
    cloud.setFillRule(Qt::WindingFill);
    cloud.addEllipse(middle, size * 1.9, size * 0.26);
    cloud.addEllipse(middle + QPointF(-size * 0.55, -size * 0.16), size * 0.72, size * 0.3);
    cloud.addEllipse(middle + QPointF(size * 0.4, -size * 0.26), size * 0.85, size * 0.4);
    painter.fillPath(cloud, QColor(255, 255, 255, 105));
}

void paintSky(QPainter& painter)
{
    fillBand(painter, 0, kHorizon + 30, 0xFF8FB8DA, 0xFFE4ECEE);
    paintCloud(painter, {250, 70}, 92);
    paintCloud(painter, {560, 118}, 60);
    paintCloud(painter, {905, 62}, 110);
    paintCloud(painter, {1190, 128}, 70);
}

/// The trees in which the road is lost.
void paintDistance(QPainter& painter)
{
    constexpr int kCrowns = 64;
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < kCrowns; ++i) {
        const int unevenness = (i * 37) % 23;
        const QPointF middle(kPictureWidth * i / (kCrowns - 1), kHorizon + 12 - unevenness * 0.5);
        painter.setBrush(QColor(0x98 + unevenness / 2, 0xAE + unevenness / 3, 0xA2));
        painter.drawEllipse(middle, 22.0 + unevenness * 0.6, 17.0 + unevenness * 0.5);
    }
}

void paintLawn(QPainter& painter)
{
    fillBand(painter, kHorizon + 12, kPictureHeight, 0xFFA8B79A, 0xFF6F8C55);
}

/// Along the road in short pieces, so that the air's colour changes with the distance.
void paintStrip(QPainter& painter, const QColor& color, qreal x0, qreal x1)
{
    for (qreal z = kFar; z > kNear; z *= 0.9)
        paintGround(painter, color, x0, x1, z * 0.895, z);
}

void paintPavement(QPainter& painter, qreal x0, qreal x1)
{
    paintStrip(painter, rgba(kPavement), x0, x1);
    for (qreal z = kNear; z < 90; z += 1.5)
        paintGround(painter, rgba(kPavementJoint), x0, x1, z, z + 0.05);
}

void paintPavements(QPainter& painter)
{
    paintPavement(painter, kLeftWalkEnd, -kRoadHalf);
    paintPavement(painter, kBayEnd, kRightWalkEnd);
    paintStrip(painter, rgba(kKerbStone), -kRoadHalf - kKerb, -kRoadHalf);
    paintStrip(painter, rgba(kKerbStone), kBayEnd, kBayEnd + kKerb);
}

void paintAsphalt(QPainter& painter)
{
    paintStrip(painter, QColor(0x66, 0x6A, 0x6E), -kRoadHalf, kRoadHalf);
    paintStrip(painter, QColor(0x72, 0x75, 0x77), kRoadHalf, kBayEnd);
    for (const qreal lane : {-5.25, -1.75, 1.75, 5.25}) {
        for (const qreal track : {-0.8, 0.8})
            paintGround(painter, QColor(0x30, 0x34, 0x38, 24), lane + track - 0.28,
                        lane + track + 0.28, kNear, kFar);
    }
    paintGround(painter, QColor(0x50, 0x54, 0x58, 150), 2.2, 5.0, 27, 33);
    paintGround(painter, QColor(0x55, 0x59, 0x5D, 130), -6.6, -4.6, 19, 30);
}

void paintDashes(QPainter& painter, qreal x)
{
    for (qreal z = 6; z < 240; z += 9)
        paintGround(painter, rgba(kMarking), x - 0.08, x + 0.08, z, z + 3.6);
}

/// An arrow on the road that points away from the camera, or towards it.
void paintArrow(QPainter& painter, qreal x, qreal z, bool pointsAway)
{
    const qreal sign = pointsAway ? 1 : -1;
    const qreal neck = z + sign * 1.2;
    const qreal tip = z + sign * 3.2;
    const qreal tail = z - sign * 2.2;
    paintFace(painter, rgba(kMarking),
              {{x - 0.11, 0, tail},
               {x + 0.11, 0, tail},
               {x + 0.11, 0, neck},
               {x + 0.42, 0, neck},
               {x, 0, tip},
               {x - 0.42, 0, neck},
               {x - 0.11, 0, neck}});
}

void paintMarkings(QPainter& painter)
{
    for (const qreal x : {-6.75, -0.17, 0.17, 6.75})
        paintStrip(painter, rgba(kMarking), x - 0.07, x + 0.07);
    paintDashes(painter, -3.5);
    paintDashes(painter, 3.5);
    for (qreal z = 12; z < 120; z += 6.5)
        paintGround(painter, rgba(kMarking), 6.9, kBayEnd - 0.1, z, z + 0.12);
    for (const qreal x : {-5.25, -1.75})
        paintArrow(painter, x, 25, false);
    for (const qreal x : {1.75, 5.25})
        paintArrow(painter, x, 38, true);
}

void paintLamp(QPainter& painter, qreal side, qreal x, qreal z)
{
    const QColor post(0x6E, 0x77, 0x7D);
    paintShadow(painter, {x + 0.3, 0, z}, 0.45, 0.3);
    paintFace(painter, post,
              {{x - 0.09, 0, z}, {x + 0.09, 0, z}, {x + 0.05, 8.6, z}, {x - 0.05, 8.6, z}});
    paintFace(painter, post,
              {{x, 8.5, z}, {x - side * 2.2, 8.85, z}, {x - side * 2.2, 8.95, z}, {x, 8.65, z}});
    paintFace(painter, QColor(0xE8, 0xE6, 0xDA),
              {{x - side * 1.7, 8.72, z},
               {x - side * 2.6, 8.84, z},
               {x - side * 2.6, 8.96, z},
               {x - side * 1.7, 8.92, z}});
}

void paintFurniture(QPainter& painter)
{
    for (const qreal z : {150.0, 116.0, 82.0, 48.0}) {
        paintLamp(painter, -1, -8.0, z);
        paintLamp(painter, 1, 10.3, z + 8);
    }
}

void paintParked(QPainter& painter)
{
    const SampleVehicle last{SampleVehicle::Kind::Car, QColor(0x7A, 0x83, 0x8A), false};
    const SampleVehicle middle{SampleVehicle::Kind::Van, QColor(0xD9, 0xD6, 0xCC), false};
    const SampleVehicle first{SampleVehicle::Kind::Car, QColor(0x4B, 0x5F, 0x7C), false};
    paintVehicle(painter, last, 8.3, 65.2);
    paintVehicle(painter, middle, 8.35, 45.0);
    paintVehicle(painter, first, 8.3, 26.2);
}

} // namespace

void paintStreet(QPainter& painter)
{
    paintSky(painter);
    paintDistance(painter);
    paintLawn(painter);
    paintPavements(painter);
    paintAsphalt(painter);
    paintMarkings(painter);
    paintHouses(painter);
    paintTrees(painter);
    paintFurniture(painter);
    paintParked(painter);
}

} // namespace UICommonMdl
