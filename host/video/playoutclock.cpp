#include "host/video/playoutclock.h"

#include <algorithm>
#include <cstdint>

namespace UICommonMdl
{

namespace
{

/// Far beyond every stream; nearer times can be subtracted without overflow.
constexpr PlayoutClock::Duration kFarthest{std::int64_t(1) << 61};
constexpr std::chrono::hours kLongestStep{1};

} // namespace

PlayoutClock::PlayoutClock(Duration delay, Duration late, Duration ahead)
    : m_delay(delay), m_late(late), m_ahead(ahead)
{
}

PlayoutClock::Time PlayoutClock::dueAt(Duration media, Time now)
{
    media = std::clamp(media, -kFarthest, kFarthest);
    if (m_restarts)
        set(media, m_due);
    m_restarts = false;
    const Duration step = media - m_media;
    if (m_isSet && step > -kLongestStep && step < kLongestStep) {
        const Time due = m_due + step;
        if (due >= now - m_late && due <= now + m_delay + m_ahead)
            return due;
    }
    set(media, now + m_delay);
    return m_due;
}

void PlayoutClock::restartAt(Time due)
{
    m_restarts = true;
    m_due = due;
}

void PlayoutClock::set(Duration media, Time due)
{
    m_isSet = true;
    m_media = media;
    m_due = due;
}

} // namespace UICommonMdl
