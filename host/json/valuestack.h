#pragma once

#include "host/json/value.h"

#include <cstring>
#include <new>

namespace kql
{
namespace Json
{

/// Values one after the other in memory, the newest at the end. They are made in place and can be
/// taken away by their bytes, so that a parser moves each only once.
class ValueStack
{
public:
    ValueStack() = default;
    ValueStack(const ValueStack&) = delete;
    ValueStack& operator=(const ValueStack&) = delete;
    ~ValueStack()
    {
        while (m_size > 0)
            m_values[--m_size].~Value();
        ::operator delete(m_values);
    }

    bool empty() const { return m_size == 0; }

    template<typename... Args>
    void push(Args&&... args)
    {
        if (m_size == m_capacity)
            grow();
        new (m_values + m_size) Value(std::forward<Args>(args)...);
        ++m_size;
    }

    /// The first of the newest @p count values.
    Value* newest(std::size_t count) { return m_values + (m_size - count); }

    /// Drops the newest @p count values, which somebody took by their bytes.
    void forgetNewest(std::size_t count) { m_size -= count; }

private:
    void grow()
    {
        const std::size_t capacity = m_capacity ? m_capacity * 2 : 256;
        auto* larger = static_cast<Value*>(::operator new(capacity * sizeof(Value)));
        if (m_size > 0)
            std::memcpy(static_cast<void*>(larger), static_cast<void*>(m_values),
                        m_size * sizeof(Value));
        ::operator delete(m_values);
        m_values = larger;
        m_capacity = capacity;
    }

    Value* m_values = nullptr;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};

} // namespace Json
} // namespace kql
