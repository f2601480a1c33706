#pragma once

#include "host/api/kqhostexport.h"

#include <chrono>
#include <deque>
#include <mutex>

namespace UICommonMdl
{

/**
 * Says until when a live stream may do without another picture. One whose pictures come seldom is
 * given more time: thrice the longest gap between its last ones. Used on any thread.
 */
class KQHOST_EXPORT PictureWatch
{
public:
    using Clock = std::chrono::steady_clock;

    /// From @p start on, @p first is for the first picture, and for the second, as before that
    /// nothing is known of their gaps; @p usual is the least for each of the others.
    PictureWatch(Clock::duration first, Clock::duration usual, Clock::time_point start);

    void notePicture(Clock::time_point time);
    Clock::time_point deadline() const;

private:
    const Clock::duration m_first;
    const Clock::duration m_usual;
    mutable std::mutex m_mutex;
    Clock::time_point m_last;
    bool m_hasPicture = false;
    std::deque<Clock::duration> m_gaps; ///< between the last pictures
};

} // namespace UICommonMdl
