#include "host/sample/samplecamerasource.h"

#include "host/sample/samplestreet.h"

namespace UICommonMdl
{

static_assert(SampleStreet::kOwnSize ==
              QSize(SampleCameraSource::kWidth, SampleCameraSource::kHeight));
namespace
{

constexpr int kMillisecondsPerSecond = 1000;

qreal secondsAt(int frame)
{
    return qreal(frame) / SampleCameraSource::kPicturesPerSecond;
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

SampleCameraSource::~SampleCameraSource() = default;

QImage SampleCameraSource::paintFrame(int frame)
{
    return SampleStreet({kWidth, kHeight}).pictureAt(secondsAt(frame));
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
    m_street.reset();
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
    if (!m_street)
        m_street = std::make_unique<SampleStreet>(m_size);
    return m_street->pictureAt(secondsAt(m_frame));
}

} // namespace UICommonMdl
