#include "host/video/picturesource.h"

#include "host/video/maskedaddress.h"

namespace UICommonMdl
{
namespace
{

constexpr int kMillisecondsPerSecond = 1000;
/// Time over which pictures a second are counted.
constexpr int kLately = 2 * kMillisecondsPerSecond;

} // namespace

PictureSource::~PictureSource() = default;

PictureStatistics PictureSource::statistics() const
{
    PictureStatistics statistics;
    statistics.size = pictureSize();
    if (m_shown.size() < 2 || m_shown.back().msecsTo(QDateTime::currentDateTimeUtc()) > kLately)
        return statistics;
    const qint64 span = qMax<qint64>(1, m_shown.front().msecsTo(m_shown.back()));
    statistics.picturesPerSecond = double(m_shown.size() - 1) * kMillisecondsPerSecond / span;
    return statistics;
}

void PictureSource::setState(PictureState state, const QString& reason)
{
    const QString shown = maskedAddress(reason);
    if (m_status.state == state && m_status.reason == shown)
        return;
    m_status.state = state;
    m_status.reason = shown;
    emit sgnStateChanged();
}

void PictureSource::announcePicture()
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    m_status.lastPicture = now.toLocalTime();
    m_shown.push_back(now);
    while (m_shown.front().msecsTo(now) > kLately)
        m_shown.pop_front();
    emit sgnPictureReady();
}

} // namespace UICommonMdl
