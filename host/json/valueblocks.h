#pragma once

#include "host/json/blockarena.h"
#include "host/json/value.h"

#include <atomic>
#include <cstdint>

namespace kql
{
namespace Json
{

/// A text too long to be held in place: shared by copies, never changed. Its bytes follow it.
struct TextBlock {
    std::atomic<int> users;
    std::uint32_t length;
    BlockArena::Chunk* chunk;

    static TextBlock* make(std::string_view utf8, BlockArena* arena = nullptr);
    void release() noexcept;
    std::string_view view() const noexcept
    {
        return {reinterpret_cast<const char*>(this + 1), length};
    }
};

/**
 * The elements of one array, which the value that holds them owns. In a chunk they lie as they are
 * and take no more of them, alone they lie behind the number of those that they have room for.
 */
struct Items {
    Value* first = nullptr;
    std::uint32_t size = 0;
    BlockArena::Offset offset = 0;

    static Items copy(const Items& other);
    /// Takes over the bytes of @p count values, which are no values any more then.
    static Items take(Value* values, int count, BlockArena& arena);
    /// Adds an element.
    void append(Value&& value);
    void release() noexcept;

    Value* begin() const noexcept { return first; }
    Value* end() const noexcept { return first + size; }

private:
    static Items makeAlone(std::uint32_t capacity);
    std::uint32_t capacity() const noexcept;
    void freeMemory() noexcept;
};

struct Member {
    Value name;
    Value value;
};

/**
 * The members of one object, in order. They follow the block, and a hash table of their
 * positions follows them where there is room for more than kLinear members.
 */
struct MemberBlock {
    int size;
    int capacity;
    BlockArena::Chunk* chunk;

    static constexpr int kLinear = 32;

    static MemberBlock* make(int capacity, BlockArena* arena = nullptr);
    static MemberBlock* copy(const MemberBlock* other);
    /// Takes over the bytes of @p count members. Of equal names the last value counts.
    static MemberBlock* take(Member* members, int count, BlockArena& arena);
    static MemberBlock* grown(MemberBlock* block);
    static void release(MemberBlock* block) noexcept;

    Member* begin() noexcept { return reinterpret_cast<Member*>(this + 1); }
    const Member* begin() const noexcept { return reinterpret_cast<const Member*>(this + 1); }
    Member* end() noexcept { return begin() + size; }
    const Member* end() const noexcept { return begin() + size; }

    Value* find(std::string_view name) noexcept;
    /// The member of that name, made as null at the end if missing. There must be room for it.
    Value& findOrAdd(Value&& name) noexcept;
    void remove(Value* value) noexcept;

private:
    Value* findLinear(const Value& name) noexcept;
    Value* findHashed(std::string_view name) noexcept;
    void addToTable(int position) noexcept;
    void fillTable() noexcept;
    static bool namesDiffer(const Member* members, int count) noexcept;
    std::uint32_t* table() noexcept { return reinterpret_cast<std::uint32_t*>(begin() + capacity); }
};

inline Items Value::items() const noexcept
{
    Items items;
    if (!isArray())
        return items;
    items.first = static_cast<Value*>(load<void*>());
    std::memcpy(&items.size, m_bytes.content + kSizeAt, sizeof items.size);
    std::memcpy(&items.offset, m_bytes.content + kOffsetAt, sizeof items.offset);
    return items;
}

inline void Value::hold(const Items& items) noexcept
{
    hold(Kind::Array, items.first);
    std::memcpy(m_bytes.content + kSizeAt, &items.size, sizeof items.size);
    std::memcpy(m_bytes.content + kOffsetAt, &items.offset, sizeof items.offset);
}

} // namespace Json
} // namespace kql
