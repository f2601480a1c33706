#include "host/json/blockarena.h"

#include <algorithm>
#include <atomic>
#include <limits>
#include <new>

namespace kql
{
namespace Json
{

struct BlockArena::Chunk {
    std::atomic<int> users;
};

namespace
{

// Also the unit of offsets.
constexpr std::size_t kAlignment = alignof(std::max_align_t);

// Users of a chunk that is still open; the true number is set when it is closed, so that taking
// a block from it needs no atomic step.
constexpr int kOpen = 1 << 30;

std::size_t aligned(std::size_t bytes)
{
    return (bytes + kAlignment - 1) / kAlignment * kAlignment;
}

} // namespace

BlockArena::Place BlockArena::allocate(std::size_t bytes)
{
    bytes = aligned(bytes);
    if (bytes > kLargestBlock)
        return allocateAlone(bytes);
    if (bytes > std::size_t(m_end - m_next))
        openChunk(bytes);
    void* memory = m_next;
    m_next += bytes;
    ++m_given;
    return {memory, m_chunk};
}

void BlockArena::openChunk(std::size_t bytes)
{
    closeChunk();
    m_chunkSize = std::min(m_chunkSize * 2, kLargestChunk);
    const std::size_t header = aligned(sizeof(Chunk));
    const std::size_t size = std::max(m_chunkSize, header + bytes);
    auto* memory = static_cast<char*>(::operator new(size));
    m_chunk = new (memory) Chunk{{kOpen}};
    m_next = memory + header;
    m_end = memory + size;
}

void BlockArena::closeChunk() noexcept
{
    const int unused = kOpen - m_given;
    if (m_chunk && m_chunk->users.fetch_sub(unused, std::memory_order_acq_rel) == unused)
        ::operator delete(m_chunk);
    m_chunk = nullptr;
    m_given = 0;
}

BlockArena::Offset BlockArena::offset(const Place& place) noexcept
{
    static_assert(kLargestChunk / kAlignment <= std::numeric_limits<Offset>::max());
    if (!place.chunk)
        return 0;
    const auto* const chunk = reinterpret_cast<const char*>(place.chunk);
    return Offset(std::size_t(static_cast<const char*>(place.memory) - chunk) / kAlignment);
}

BlockArena::Place BlockArena::place(void* memory, Offset offset) noexcept
{
    if (offset == 0)
        return {memory, nullptr};
    char* const chunk = static_cast<char*>(memory) - offset * kAlignment;
    return {memory, reinterpret_cast<Chunk*>(chunk)};
}

void BlockArena::release(Place place) noexcept
{
    if (!place.chunk)
        ::operator delete(place.memory);
    else if (place.chunk->users.fetch_sub(1, std::memory_order_acq_rel) == 1)
        ::operator delete(place.chunk);
}

} // namespace Json
} // namespace kql
