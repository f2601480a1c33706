#pragma once

#include <QHash>
#include <QImage>

class QPainter;

namespace UICommonMdl
{

/**
 * The sample camera's street in one size: a picture from the resource, over which vehicles and
 * walkers move as sprites. Without the resource, or a decoder for it, the street is plain grey.
 */
class SampleStreet
{
public:
    /// Where everything is placed, whatever size is painted.
    static constexpr QSize kOwnSize{1280, 720};

    explicit SampleStreet(const QSize& size);

    QSize size() const { return m_background.size(); }
    /// The street at @p seconds; the same time, the same picture.
    QImage pictureAt(qreal seconds);

private:
    void paintWalkers(QPainter& painter, qreal seconds);
    void paintVehicles(QPainter& painter, qreal seconds);
    const QImage& sprites(const QString& name);

    QImage m_background;
    QHash<QString, QImage> m_sprites; ///< those that were needed so far
};

} // namespace UICommonMdl
