#include "host/streams/packetqueue.h"

namespace UICommonMdl
{
namespace
{

constexpr std::size_t kMostPackets = 4096;
constexpr std::size_t kMostFilePackets = 32;
constexpr qint64 kMostBytes = qint64(64) * 1024 * 1024;

} // namespace

PacketQueue::PacketQueue(std::optional<Clock::duration> longest) : m_longest(longest) {}

int PacketQueue::push(AvPacketPointer packet)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (!m_longest)
        m_changed.wait(lock, [this]() { return m_aborted || !isFull(); });
    const int thrownAway = m_longest ? throwAwayLate() : 0;
    if (packet && m_needsKey && !(packet->flags & AV_PKT_FLAG_KEY))
        return thrownAway + 1;
    m_needsKey = false;
    m_bytes += packet ? packet->size : 0;
    m_entries.push_back({std::move(packet), Clock::now()});
    m_changed.notify_all();
    return thrownAway;
}

void PacketQueue::finish(int code)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_finished = true;
    m_endCode = code;
    m_changed.notify_all();
}

void PacketQueue::abort()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_aborted = true;
    m_changed.notify_all();
}

std::optional<AvPacketPointer> PacketQueue::pop()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, [this]() { return m_finished || !m_entries.empty(); });
    if (m_entries.empty())
        return std::nullopt;
    AvPacketPointer packet = std::move(m_entries.front().packet);
    m_entries.pop_front();
    m_bytes -= packet ? packet->size : 0;
    m_changed.notify_all();
    return packet;
}

int PacketQueue::endCode() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_endCode;
}

bool PacketQueue::isFull() const
{
    return m_entries.size() >= (m_longest ? kMostPackets : kMostFilePackets) ||
           m_bytes >= kMostBytes;
}

int PacketQueue::throwAwayLate()
{
    const bool late = !m_entries.empty() && Clock::now() - m_entries.front().arrival > *m_longest;
    if (!late && !isFull())
        return 0;
    const auto count = int(m_entries.size());
    m_entries.clear();
    m_bytes = 0;
    m_needsKey = true;
    return count;
}

} // namespace UICommonMdl
