#include "host/sample/sampletraffic.h"

#include "host/sample/samplevehicle.h"
#include "host/sample/samplewalker.h"
#include "host/sample/streetview.h"

#include <QPainter>
#include <QTime>

#include <algorithm>
#include <cmath>
#include <vector>

namespace UICommonMdl
{
namespace
{

constexpr qreal kLaneStart = -6; ///< metres; nearer than what the picture shows
constexpr qreal kLaneLength = 196;
constexpr qreal kWalkStart = 8;
constexpr qreal kWalkLength = 92;
constexpr qreal kFadeLength = 30; ///< over the last metres, far away, all come and go softly

struct Driver {
    qreal lane; ///< middle of the lane, metres
    qreal start;
    qreal speed; ///< metres a second away from the camera, the same for all of a lane
    SampleVehicle vehicle;
};

struct Stroller {
    qreal x;
    qreal start;
    qreal speed;
    SampleWalker walker;
};

const std::vector<Driver>& drivers()
{
    using Kind = SampleVehicle::Kind;
    static const std::vector<Driver> list{
        {-5.25, 8, -9.5, {Kind::Car, QColor(0xB7, 0x3A, 0x35), true}},
        {-5.25, 62, -9.5, {Kind::Bus, QColor(0xC9, 0xA2, 0x3B), true}},
        {-5.25, 118, -9.5, {Kind::Car, QColor(0xE4, 0xE6, 0xE6), true}},
        {-1.75, 30, -12.5, {Kind::Car, QColor(0x3B, 0x5B, 0x86), true}},
        {-1.75, 96, -12.5, {Kind::Van, QColor(0xDF, 0xE1, 0xDE), true}},
        {-1.75, 150, -12.5, {Kind::Car, QColor(0x4E, 0x53, 0x57), true}},
        {1.75, 26, 12, {Kind::Car, QColor(0xD8, 0xDA, 0xDB), false}},
        {1.75, 74, 12, {Kind::Car, QColor(0x2F, 0x6B, 0x5E), false}},
        {1.75, 140, 12, {Kind::Car, QColor(0x8C, 0x2F, 0x39), false}},
        {5.25, 40, 9, {Kind::Van, QColor(0x4A, 0x6F, 0x97), false}},
        {5.25, 104, 9, {Kind::Car, QColor(0x9A, 0x9F, 0xA3), false}},
        {5.25, 160, 9, {Kind::Car, QColor(0xC4, 0x7A, 0x2C), false}},
    };
    return list;
}

const std::vector<Stroller>& strollers()
{
    static const std::vector<Stroller> list{
        {-9.4, 8, 1.3, {QColor(0x35, 0x51, 0x78), QColor(0x2C, 0x30, 0x36), 1.8}},
        {-8.5, 26, -1.2, {QColor(0xA8, 0x43, 0x3E), QColor(0x3A, 0x3F, 0x4A), 1.68}},
        {-9.6, 52, 1.1, {QColor(0x5B, 0x6E, 0x4B), QColor(0x4A, 0x44, 0x3D), 1.75}},
        {11.2, 20, -1.25, {QColor(0xC9, 0xA0, 0x4A), QColor(0x2F, 0x37, 0x44), 1.7}},
        {11.9, 21, -1.25, {QColor(0x6D, 0x58, 0x80), QColor(0x39, 0x39, 0x3D), 1.62}},
        {11.4, 60, 1.35, {QColor(0x44, 0x4B, 0x52), QColor(0x5A, 0x62, 0x6B), 1.82}},
    };
    return list;
}

/// Place on a loop of @p length metres after driving @p way metres.
qreal looped(qreal way, qreal length)
{
    const qreal place = std::fmod(way, length);
    return place < 0 ? place + length : place;
}

qreal opacityAt(qreal place, qreal length)
{
    return qBound(0.0, (length - place) / kFadeLength, 1.0);
}

void paintStrollers(QPainter& painter, qreal seconds)
{
    constexpr qreal kStepLength = 0.72;
    for (const Stroller& stroller : strollers()) {
        const qreal way = stroller.start + stroller.speed * seconds;
        const qreal place = looped(way, kWalkLength);
        paintWalker(painter, stroller.walker, stroller.x, kWalkStart + place, way / kStepLength,
                    opacityAt(place, kWalkLength));
    }
}

void paintDrivers(QPainter& painter, qreal seconds)
{
    std::vector<std::pair<qreal, const Driver*>> byDistance;
    for (const Driver& driver : drivers())
        byDistance.emplace_back(looped(driver.start + driver.speed * seconds, kLaneLength),
                                &driver);
    std::sort(byDistance.rbegin(), byDistance.rend());
    for (const auto& [place, driver] : byDistance) {
        painter.setOpacity(opacityAt(place, kLaneLength));
        paintVehicle(painter, driver->vehicle, driver->lane, kLaneStart + place);
    }
    painter.setOpacity(1);
}

/// The text that cameras put into their pictures.
void paintCaption(QPainter& painter, qreal seconds)
{
    const QTime start(8, 30);
    const QTime time = start.addSecs(int(seconds));
    QFont font = painter.font();
    font.setPixelSize(22);
    painter.setFont(font);
    const QString text = QStringLiteral("Sample camera  %1").arg(time.toString(Qt::ISODate));
    painter.setPen(QColor(0, 0, 0, 130));
    painter.drawText(QPointF(25, 41), text);
    painter.setPen(QColor(255, 255, 255, 235));
    painter.drawText(QPointF(24, 40), text);
}

} // namespace

void paintTraffic(QPainter& painter, qreal seconds)
{
    paintStrollers(painter, seconds);
    paintDrivers(painter, seconds);
    paintCaption(painter, seconds);
}

} // namespace UICommonMdl
