#pragma once

#include "host/api/kqhostexport.h"

#include <chrono>

namespace UICommonMdl
{

/**
 * Says when each picture of a stream is due: the first one a delay after it came, the others in
 * the distances of their media times. A picture that comes too late, or lies too far ahead, sets
 * the clock anew.
 */
class KQHOST_EXPORT PlayoutClock
{
public:
    using Time = std::chrono::steady_clock::time_point;
    using Duration = std::chrono::microseconds;

    /// @p ahead counts from the end of the delay.
    PlayoutClock(Duration delay, Duration late, Duration ahead);

    Time dueAt(Duration media, Time now);
    /// The next picture is due at @p due, whatever its media time.
    void restartAt(Time due);

private:
    void set(Duration media, Time due);

    Duration m_delay;
    Duration m_late;
    Duration m_ahead;
    bool m_isSet = false;
    bool m_restarts = false;
    Duration m_media{}; ///< the media time that is due at m_due
    Time m_due;
};

} // namespace UICommonMdl
