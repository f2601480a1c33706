#pragma once

#include <cstddef>
#include <cstdint>
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
    /// Distance of a block from its chunk's start; 0 for one in no chunk.
    using Offset = std::uint16_t;

    BlockArena() = default;
    BlockArena(const BlockArena&) = delete;
    BlockArena& operator=(const BlockArena&) = delete;
    ~BlockArena() { closeChunk(); }

    /// Blocks of more bytes get a place of their own, in no chunk.
    static constexpr std::size_t kLargestBlock = 8192;

    Place allocate(std::size_t bytes);

    /// A place of its own, in no chunk.
    static Place allocateAlone(std::size_t bytes) { return {::operator new(bytes), nullptr}; }
    static void release(Place place) noexcept;

    static Offset offset(const Place& place) noexcept;
    static Place place(void* memory, Offset offset) noexcept;

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
