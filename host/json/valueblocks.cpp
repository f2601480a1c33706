#include "host/json/valueblocks.h"

#include "host/json/namehash.h"

#include <algorithm>
#include <new>

namespace kql
{
namespace Json
{

namespace
{

constexpr std::uint32_t kFree = UINT32_MAX;

/// Slots of the table of an object with room for so many members: a power of two, half empty.
std::size_t slotCount(int capacity) noexcept
{
    if (capacity <= MemberBlock::kLinear)
        return 0;
    std::size_t slots = 128;
    while (slots < std::size_t(capacity) * 2)
        slots *= 2;
    return slots;
}

int grownCapacity(int size, int smallest) noexcept
{
    return std::max(smallest, size + size / 2 + 1);
}

BlockArena::Place allocate(std::size_t bytes, BlockArena* arena)
{
    return arena ? arena->allocate(bytes) : BlockArena::allocateAlone(bytes);
}

/// Elements move by their bytes; their old places are given back without being destroyed.
template<typename T>
void moveBytes(T* to, const T* from, int count) noexcept
{
    std::memcpy(static_cast<void*>(to), static_cast<const void*>(from),
                std::size_t(count) * sizeof(T));
}

} // namespace

TextBlock* TextBlock::make(std::string_view utf8, BlockArena* arena)
{
    const auto [memory, chunk] = allocate(sizeof(TextBlock) + utf8.size(), arena);
    auto* block = new (memory) TextBlock{{1}, std::uint32_t(utf8.size()), chunk};
    std::memcpy(static_cast<void*>(block + 1), utf8.data(), utf8.size());
    return block;
}

void TextBlock::release() noexcept
{
    if (users.fetch_sub(1, std::memory_order_acq_rel) == 1)
        BlockArena::release({this, chunk});
}

Items Items::makeAlone(std::uint32_t capacity)
{
    void* const memory =
        BlockArena::allocateAlone((std::size_t(capacity) + 1) * sizeof(Value)).memory;
    new (memory) std::uint32_t(capacity);
    return {static_cast<Value*>(memory) + 1, 0, 0};
}

std::uint32_t Items::capacity() const noexcept
{
    return first && offset == 0 ? *reinterpret_cast<const std::uint32_t*>(first - 1) : size;
}

Items Items::copy(const Items& other)
{
    if (other.size == 0)
        return {};
    Items items = makeAlone(other.size);
    for (const Value& item : other)
        new (items.first + items.size++) Value(item);
    return items;
}

Items Items::take(Value* values, int count, BlockArena& arena)
{
    const std::size_t bytes = std::size_t(count) * sizeof(Value);
    Items items;
    if (bytes <= BlockArena::kLargestBlock) {
        const BlockArena::Place place = arena.allocate(bytes);
        items = {static_cast<Value*>(place.memory), 0, BlockArena::offset(place)};
    } else {
        items = makeAlone(std::uint32_t(count));
    }
    moveBytes(items.first, values, count);
    items.size = std::uint32_t(count);
    return items;
}

void Items::append(Value&& value)
{
    if (size == capacity()) {
        Items larger = makeAlone(std::uint32_t(grownCapacity(int(size), 2)));
        if (first) {
            moveBytes(larger.first, first, int(size));
            freeMemory();
        }
        larger.size = size;
        *this = larger;
    }
    new (end()) Value(std::move(value));
    ++size;
}

void Items::release() noexcept
{
    for (Value& item : *this)
        item.~Value();
    if (first)
        freeMemory();
}

void Items::freeMemory() noexcept
{
    BlockArena::release(BlockArena::place(offset == 0 ? first - 1 : first, offset));
}

MemberBlock* MemberBlock::make(int capacity, BlockArena* arena)
{
    const std::size_t slots = slotCount(capacity);
    const auto [memory, chunk] =
        allocate(sizeof(MemberBlock) + std::size_t(capacity) * sizeof(Member) +
                     slots * sizeof(std::uint32_t),
                 arena);
    auto* block = new (memory) MemberBlock{0, capacity, chunk};
    std::fill_n(block->table(), slots, kFree);
    return block;
}

MemberBlock* MemberBlock::copy(const MemberBlock* other)
{
    if (!other || other->size == 0)
        return nullptr;
    MemberBlock* block = make(other->size);
    for (const Member& member : *other) {
        new (block->end()) Member(member);
        ++block->size;
    }
    block->fillTable();
    return block;
}

MemberBlock* MemberBlock::take(Member* members, int count, BlockArena& arena)
{
    MemberBlock* block = make(count, &arena);
    if (count <= kLinear && namesDiffer(members, count)) {
        moveBytes(block->begin(), members, count);
        block->size = count;
        return block;
    }
    for (Member* member = members; member != members + count; ++member) {
        block->findOrAdd(std::move(member->name)) = std::move(member->value);
        member->~Member();
    }
    return block;
}

bool MemberBlock::namesDiffer(const Member* members, int count) noexcept
{
    for (const Member* one = members; one != members + count; ++one) {
        for (const Member* earlier = members; earlier != one; ++earlier) {
            if (earlier->name.sameText(one->name))
                return false;
        }
    }
    return true;
}

MemberBlock* MemberBlock::grown(MemberBlock* block)
{
    if (block && block->size < block->capacity)
        return block;
    MemberBlock* larger = make(grownCapacity(block ? block->size : 0, 4));
    if (block) {
        moveBytes(larger->begin(), block->begin(), block->size);
        larger->size = block->size;
        BlockArena::release({block, block->chunk});
        larger->fillTable();
    }
    return larger;
}

void MemberBlock::release(MemberBlock* block) noexcept
{
    if (!block)
        return;
    std::for_each(block->begin(), block->end(), [](Member& member) { member.~Member(); });
    BlockArena::release({block, block->chunk});
}

Value* MemberBlock::find(std::string_view name) noexcept
{
    if (size > kLinear)
        return findHashed(name);
    if (name.size() <= Value::kShortText)
        return findLinear(Value(name));
    for (Member& member : *this) {
        if (member.name.asView() == name)
            return &member.value;
    }
    return nullptr;
}

Value* MemberBlock::findLinear(const Value& name) noexcept
{
    for (Member& member : *this) {
        if (member.name.sameText(name))
            return &member.value;
    }
    return nullptr;
}

Value* MemberBlock::findHashed(std::string_view name) noexcept
{
    const std::size_t mask = slotCount(capacity) - 1;
    for (std::size_t slot = std::size_t(hashOfName(name)) & mask;; slot = (slot + 1) & mask) {
        const std::uint32_t position = table()[slot];
        if (position == kFree)
            return nullptr;
        if (begin()[position].name.asView() == name)
            return &begin()[position].value;
    }
}

Value& MemberBlock::findOrAdd(Value&& name) noexcept
{
    Value* known = size > kLinear ? findHashed(name.asView()) : findLinear(name);
    if (known)
        return *known;
    auto* member = new (end()) Member{std::move(name), {}};
    addToTable(size++);
    return member->value;
}

void MemberBlock::remove(Value* value) noexcept
{
    auto* member = begin();
    while (&member->value != value)
        ++member;
    member->~Member();
    std::memmove(static_cast<void*>(member), static_cast<void*>(member + 1),
                 std::size_t(end() - (member + 1)) * sizeof(Member));
    --size;
    fillTable();
}

void MemberBlock::addToTable(int position) noexcept
{
    if (capacity <= kLinear)
        return;
    const std::size_t mask = slotCount(capacity) - 1;
    std::size_t slot = std::size_t(hashOfName(begin()[position].name.asView())) & mask;
    while (table()[slot] != kFree)
        slot = (slot + 1) & mask;
    table()[slot] = std::uint32_t(position);
}

void MemberBlock::fillTable() noexcept
{
    std::fill_n(table(), slotCount(capacity), kFree);
    for (int position = 0; position < size; ++position)
        addToTable(position);
}

} // namespace Json
} // namespace kql
