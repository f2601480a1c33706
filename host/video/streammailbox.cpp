#include "host/video/streammailbox.h"

#include "host/video/picturesize.h"

#include <utility>

namespace UICommonMdl
{

using Lock = std::lock_guard<std::mutex>;

StreamMailbox::StreamMailbox(std::function<void()> wake) : m_wake(std::move(wake)) {}

void StreamMailbox::close()
{
    const Lock lock(m_mutex);
    m_wake = nullptr;
    m_news = {};
    m_changed.notify_all();
}

StreamNews StreamMailbox::fetch()
{
    const Lock lock(m_mutex);
    m_isAwake = false;
    return std::exchange(m_news, {});
}

void StreamMailbox::setTargetSize(const QSize& size)
{
    const Lock lock(m_mutex);
    m_targetSize = size;
    m_changed.notify_all();
}

void StreamMailbox::setBounds(const QSize& bounds)
{
    const Lock lock(m_mutex);
    m_bounds = bounds;
}

QSize StreamMailbox::targetFor(const QSize& size) const
{
    const Lock lock(m_mutex);
    if (!m_targetSize.isEmpty())
        return m_targetSize;
    return m_bounds.isEmpty() ? sizeUnasked(size) : letterboxed(size, {{}, m_bounds}).size();
}

bool StreamMailbox::isClosed() const
{
    const Lock lock(m_mutex);
    return !m_wake;
}

bool StreamMailbox::waitUntil(Clock::time_point time)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return !m_changed.wait_until(lock, time, [this]() { return !m_wake; });
}

bool StreamMailbox::waitForAnotherSize(const QSize& size)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, [this, &size]() {
        return !m_wake || (!m_targetSize.isEmpty() && m_targetSize != size);
    });
    return bool(m_wake);
}

void StreamMailbox::setCodec(const QString& codec)
{
    const Lock lock(m_mutex);
    m_codec = codec;
}

void StreamMailbox::countDropped(int pictures)
{
    const Lock lock(m_mutex);
    m_dropped += pictures;
}

void StreamMailbox::setLoginRefused()
{
    const Lock lock(m_mutex);
    m_isLoginRefused = true;
}

void StreamMailbox::postPicture(const QImage& picture,
                                std::shared_ptr<const DecodedPicture> decoded)
{
    const Lock lock(m_mutex);
    if (!m_wake)
        return;
    m_dropped += m_news.picture.isNull() || m_news.decoded == decoded ? 0 : 1;
    m_news.picture = picture;
    m_news.decoded = std::move(decoded);
    wakeOnce();
}

void StreamMailbox::postFailure(const QString& reason)
{
    const Lock lock(m_mutex);
    if (!m_wake)
        return;
    m_news.failure = reason;
    wakeOnce();
}

void StreamMailbox::wakeOnce()
{
    if (!std::exchange(m_isAwake, true))
        m_wake();
}

} // namespace UICommonMdl
