#pragma once

#include <cstddef>
#include <new>

namespace kql
{
namespace Json
{

/**
 * Memory for the many small blocks of a document that is being read. Blocks lie side by side in
 * chunks, and a chunk is given back when the last of its blocks is released, by whichever value
 * holds that one then. Blocks outlive the arena; they are released one by one.
 */
class BlockArena
{
public:
    struct Chunk;
    struct Place {
        void* memory;
        Chunk* chunk;
    };

    BlockArena() = default;
    BlockArena(const BlockArena&) = delete;
    BlockArena& operator=(const BlockArena&) = delete;
    ~BlockArena() { closeChunk(); }

    Place allocate(std::size_t bytes);

    /// A place of its own, in no chunk.
    static Place allocateAlone(std::size_t bytes) { return {::operator new(bytes), nullptr}; }
    static void release(Place place) noexcept;

private:
    static constexpr std::size_t kFirstChunk = 1024;
    static constexpr std::size_t kLargestChunk = 65536;

    void openChunk(std::size_t bytes);
    void closeChunk() noexcept;

    Chunk* m_chunk = nullptr;
    char* m_next = nullptr;
    char* m_end = nullptr;
    std::size_t m_chunkSize = kFirstChunk / 2;
    int m_given = 0;
};

} // namespace Json
} // namespace kql
