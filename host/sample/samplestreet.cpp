#include "host/sample/samplestreet.h"

#include <QCoreApplication>
#include <QPainter>
#include <QTime>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <vector>

namespace UICommonMdl
{
namespace
{

constexpr QRect kView({0, 0}, SampleStreet::kOwnSize);
constexpr qreal kMiddle = 616;  ///< where the road vanishes, camera pixels
constexpr qreal kHorizon = 216; ///< camera pixels from the top
constexpr qreal kFocus = 900;   ///< camera pixels
constexpr qreal kCameraHeight = 7.5;
constexpr qreal kNearest = 3; ///< metres; what is nearer is shown as if it were there
constexpr qreal kLaneStart = -6;
constexpr qreal kLaneLength = 196;
constexpr qreal kWalkStart = 8;
constexpr qreal kWalkLength = 92;

struct Shape {
    qreal width;
    qreal height;
    qreal length;
};

constexpr Shape kCar{1.8, 1.46, 4.4};
constexpr Shape kVan{1.95, 2.3, 5.6};
constexpr Shape kBus{2.5, 3, 11};

struct Driver {
    qreal lane; ///< its middle, metres to the right of the road's
    qreal start;
    qreal speed; ///< metres a second away from the camera, the same for all of a lane
    Shape shape;
};

constexpr Driver kDrivers[] = {
    {-5.25, 8, -9.5, kCar},   {-5.25, 62, -9.5, kBus},  {-5.25, 118, -9.5, kCar},
    {-1.75, 30, -12.5, kCar}, {-1.75, 96, -12.5, kVan}, {-1.75, 150, -12.5, kCar},
    {1.75, 26, 12, kCar},     {1.75, 74, 12, kCar},     {1.75, 140, 12, kCar},
    {5.25, 40, 9, kVan},      {5.25, 104, 9, kCar},     {5.25, 160, 9, kCar},
};

struct Stroller {
    qreal x;
    qreal start;
    qreal speed;
    qreal height;
};

constexpr Stroller kStrollers[] = {
    {-9.4, 8, 1.3, 1.8},    {-8.5, 26, -1.2, 1.68},  {-9.6, 52, 1.1, 1.75},
    {11.2, 20, -1.25, 1.7}, {11.9, 21, -1.25, 1.62}, {11.4, 60, 1.35, 1.82},
};

/// Camera pixels a metre at @p distance.
qreal scaleAt(qreal distance)
{
    return kFocus / qMax(distance, kNearest);
}

/// Camera pixels of a place in metres: right of the road's middle, above it, from the camera.
QPointF project(qreal x, qreal y, qreal distance)
{
    const qreal scale = scaleAt(distance);
    return {kMiddle + x * scale, kHorizon + (kCameraHeight - y) * scale};
}

/// What a vehicle and its shadow, to its right, cover; its sprites fill that.
QRectF outlineOf(const Driver& driver, qreal distance)
{
    const Shape& shape = driver.shape;
    QPolygonF corners;
    for (const qreal x : {-shape.width / 2, shape.width / 2 + 0.55}) {
        for (const qreal z : {distance - 0.15, distance + shape.length + 0.1})
            corners << project(driver.lane + x, 0, z) << project(driver.lane + x, shape.height, z);
    }
    return corners.boundingRect();
}

/// Place on a loop of @p length metres after a way of @p way metres.
qreal looped(qreal way, qreal length)
{
    const qreal place = std::fmod(way, length);
    return place < 0 ? place + length : place;
}

/// Over the last metres, far away, all come and go softly.
qreal opacityAt(qreal place, qreal length)
{
    constexpr qreal kFadeLength = 30;
    return qBound(0.0, (length - place) / kFadeLength, 1.0);
}

/// The picture in the resource for the narrowest of some cameras that is sharp in @p size.
QImage pictureFor(const QSize& size, std::initializer_list<int> widths, const QString& name)
{
    const auto isSharp = [&size](int width) {
        return size.width() <= width &&
               qint64(size.height()) * kView.width() <= qint64(width) * kView.height();
    };
    const auto* const found = std::find_if(widths.begin(), widths.end() - 1, isSharp);
    return QImage(QStringLiteral(":/sample/pictures/") + name.arg(*found));
}

QImage background(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::gray);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(image.rect(),
                      pictureFor(size, {960, 1280, 1920, 3840}, QStringLiteral("street-%1.jpg")));
    return image;
}

/// The text that cameras put into their pictures.
void paintCaption(QPainter& painter, qreal seconds)
{
    const QTime time = QTime(8, 30).addSecs(int(seconds));
    QFont font = painter.font();
    font.setPixelSize(22);
    painter.setFont(font);
    const QString text = QStringLiteral("%1  %2").arg(
        QCoreApplication::translate("SampleStreet", "Sample camera"), time.toString(Qt::ISODate));
    painter.setPen(QColor(0, 0, 0, 130));
    painter.drawText(QPointF(25, 41), text);
    painter.setPen(QColor(255, 255, 255, 235));
    painter.drawText(QPointF(24, 40), text);
}

/// Sprites have their colours as from near by; the air takes them away bit by bit.
void paintSprite(QPainter& painter, const QImage& sprite, const QRectF& place, qreal distance)
{
    if (sprite.isNull())
        return;
    QImage image = sprite.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QSize size = painter.transform().mapRect(place).toAlignedRect().size();
    if (size.width() < image.width())
        image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QColor air(0xCB, 0xD6, 0xDA);
    air.setAlphaF(qBound(0.0, distance / 260, 0.62));
    QPainter haze(&image);
    haze.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    haze.fillRect(image.rect(), air);
    haze.end();
    painter.drawImage(place, image);
}

void paintShadow(QPainter& painter, qreal x, qreal distance)
{
    const qreal top = project(x, 0, distance + 0.35).y();
    const qreal bottom = project(x, 0, distance - 0.35).y();
    const QPointF middle(project(x, 0, distance).x(), (top + bottom) / 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(10, 20, 25, 46));
    painter.drawEllipse(middle, 0.5 * scaleAt(distance), (bottom - top) / 2);
}

} // namespace

SampleStreet::SampleStreet(const QSize& size) : m_background(background(size)) {}

QImage SampleStreet::pictureAt(qreal seconds)
{
    QImage image = m_background.copy();
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(qreal(image.width()) / kView.width(), qreal(image.height()) / kView.height());
    paintWalkers(painter, seconds);
    paintVehicles(painter, seconds);
    painter.setOpacity(1);
    paintCaption(painter, seconds);
    painter.end();
    return image;
}

void SampleStreet::paintWalkers(QPainter& painter, qreal seconds)
{
    constexpr qreal kStepLength = 0.72;
    constexpr int kSwings = 9; ///< pictures from one leg in front to the other
    int number = 0;
    for (const Stroller& stroller : kStrollers) {
        const qreal way = stroller.start + stroller.speed * seconds;
        const qreal place = looped(way, kWalkLength);
        const qreal distance = kWalkStart + place;
        const int swing = qRound((1 + qSin(way / kStepLength * M_PI)) * (kSwings - 1) / 2);
        const QImage& swings = sprites(
            QStringLiteral("walker-%1-%2-%3.png").arg(number++).arg(distance < 30 ? 0 : 30));
        const int width = swings.width() / kSwings;
        const qreal height = stroller.height * scaleAt(distance);
        const QPointF feet = project(stroller.x, 0, distance);
        painter.setOpacity(opacityAt(place, kWalkLength));
        paintShadow(painter, stroller.x + 0.25, distance);
        paintSprite(
            painter, swings.copy(swing * width, 0, width, swings.height()),
            {feet.x() - 0.24 * height, feet.y() - 1.03 * height, 0.48 * height, 1.08 * height},
            distance);
    }
}

void SampleStreet::paintVehicles(QPainter& painter, qreal seconds)
{
    std::vector<std::pair<qreal, int>> byDistance;
    for (const Driver& driver : kDrivers)
        byDistance.emplace_back(looped(driver.start + driver.speed * seconds, kLaneLength),
                                int(byDistance.size()));
    std::sort(byDistance.rbegin(), byDistance.rend());
    for (const auto& [place, number] : byDistance) {
        const qreal distance = kLaneStart + place;
        const QRectF outline = outlineOf(kDrivers[number], distance);
        if (!outline.intersects(kView))
            continue;
        // The nearer, the more of the roof is seen: a sprite serves from its distance on.
        const int seenFrom = distance < 15 ? 0 : distance < 25 ? 15 : distance < 50 ? 25 : 50;
        painter.setOpacity(opacityAt(place, kLaneLength));
        paintSprite(painter,
                    sprites(QStringLiteral("vehicle-%1-%2-%3.png").arg(number).arg(seenFrom)),
                    outline, distance);
    }
}

const QImage& SampleStreet::sprites(const QString& name)
{
    QImage& image = m_sprites[name];
    if (image.isNull())
        image = pictureFor(m_background.size(), {960, 1920, 3840}, name);
    return image;
}

} // namespace UICommonMdl
