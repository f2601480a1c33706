#include "host/sample/samplecamerasource.h"

#include "host/sample/samplestreet.h"
#include "host/sample/sampletraffic.h"

#include <QPainter>

namespace UICommonMdl
{
namespace
{

constexpr int kMillisecondsPerSecond = 1000;

/// A painter's units become the camera's own pixels, whatever the image's size.
void useCameraPixels(QPainter& painter, const QSize& size)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(qreal(size.width()) / SampleCameraSource::kWidth,
                  qreal(size.height()) / SampleCameraSource::kHeight);
}

QImage paintedBackground(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    useCameraPixels(painter, size);
    paintStreet(painter);
    return image;
}

QImage paintedFrame(const QImage& background, int frame)
{
    QImage image = background.copy();
    QPainter painter(&image);
    useCameraPixels(painter, image.size());
    paintTraffic(painter, qreal(frame) / SampleCameraSource::kPicturesPerSecond);
    return image;
}

std::optional<int> frozenFrame()
{
    bool isNumber = false;
    const int frame = qEnvironmentVariableIntValue("KQ_SAMPLE_FREEZE", &isNumber);
    return isNumber ? std::optional<int>(frame) : std::nullopt;
}

} // namespace

SampleCameraSource::SampleCameraSource() : m_frozen(frozenFrame())
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(kMillisecondsPerSecond / kPicturesPerSecond);
    connect(&m_timer, &QTimer::timeout, this, &SampleCameraSource::nextPicture);
}

QImage SampleCameraSource::paintFrame(int frame)
{
    return paintedFrame(paintedBackground({kWidth, kHeight}), frame);
}

void SampleCameraSource::freeze(int frame)
{
    m_frozen = frame;
    m_timer.stop();
    if (m_started)
        nextPicture();
}

void SampleCameraSource::start()
{
    m_started = true;
    m_clock.start();
    if (!m_frozen)
        m_timer.start();
    setState(PictureState::Playing);
    nextPicture();
}

void SampleCameraSource::stop()
{
    m_timer.stop();
    setState(PictureState::Ended);
}

QImage SampleCameraSource::picture() const
{
    if (m_started && m_picture.isNull())
        m_picture = paint();
    return m_picture;
}

QSize SampleCameraSource::pictureSize() const
{
    return m_started ? QSize(kWidth, kHeight) : QSize();
}

QImage SampleCameraSource::fullPicture() const
{
    return m_started ? paintFrame(m_frame) : QImage();
}

void SampleCameraSource::setTargetSize(const QSize& size)
{
    const QSize wanted = size.isEmpty() ? QSize(kWidth, kHeight) : size;
    if (wanted == m_size)
        return;
    m_size = wanted;
    m_background = QImage();
    m_picture = QImage();
}

void SampleCameraSource::nextPicture()
{
    const auto elapsed = int(m_clock.elapsed() * kPicturesPerSecond / kMillisecondsPerSecond);
    m_frame = m_frozen.value_or(elapsed);
    m_picture = QImage();
    announcePicture();
}

QImage SampleCameraSource::paint() const
{
    if (m_background.isNull())
        m_background = paintedBackground(m_size);
    return paintedFrame(m_background, m_frame);
}

} // namespace UICommonMdl
