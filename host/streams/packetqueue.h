#pragma once

#include "host/streams/avpointers.h"

#include <QtGlobal>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>

namespace UICommonMdl
{

/**
 * Packets on their way from the thread that reads them to the one that decodes them. When the
 * decoder falls behind, a file's reader waits; of a live stream, what waits too long is thrown
 * away, up to the next packet that can be decoded by itself.
 */
class PacketQueue
{
public:
    using Clock = std::chrono::steady_clock;

    /// @p longest is how long a live packet may wait; none for a file.
    explicit PacketQueue(std::optional<Clock::duration> longest);

    /// A null packet says that the stream starts over. Returns how many packets were thrown away.
    int push(AvPacketPointer packet);
    /// No more packets come; @p code tells why.
    void finish(int code);
    /// Nobody takes packets any more: push() waits no longer.
    void abort();

    /// Waits for the next packet; none when there will be no more.
    std::optional<AvPacketPointer> pop();
    /// What finish() was told.
    int endCode() const;

private:
    struct Entry {
        AvPacketPointer packet;
        Clock::time_point arrival;
    };

    bool isFull() const;
    int throwAwayLate();

    const std::optional<Clock::duration> m_longest;
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Entry> m_entries;
    qint64 m_bytes = 0;
    bool m_needsKey = false;
    bool m_aborted = false;
    bool m_finished = false;
    int m_endCode = 0;
};

} // namespace UICommonMdl
