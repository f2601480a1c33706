#include "host/blockarena.h"

#include <algorithm>
#include <atomic>
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
    if (bytes > kLargestChunk / 8)
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

void BlockArena::release(Place place) noexcept
{
    if (!place.chunk)
        ::operator delete(place.memory);
    else if (place.chunk->users.fetch_sub(1, std::memory_order_acq_rel) == 1)
        ::operator delete(place.chunk);
}

} // namespace Json
} // namespace kql
