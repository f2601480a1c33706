#pragma once

#include "host/json/blockarena.h"
#include "host/json/valuestack.h"

namespace kql
{
namespace Json
{

/**
 * Makes a document of the events of a parser, which calls the methods in capitals.
 * Each returns false, and fault() then tells why, where the document must be refused.
 */
class ValueBuilder
{
public:
    /// Deeper nesting than this is refused.
    static constexpr int kDeepest = 512;

    /// With @p escapes, texts may come from \u escapes and are searched for lone surrogates.
    explicit ValueBuilder(bool escapes) : m_escapes(escapes) {}

    bool Null() { return add(); }
    bool Bool(bool value) { return add(value); }
    bool RawNumber(const char* text, unsigned length, bool copy);
    bool String(const char* text, unsigned length, bool copy);
    bool Key(const char* text, unsigned length, bool copy) { return String(text, length, copy); }
    bool StartObject() { return enter(); }
    bool EndObject(unsigned count);
    bool StartArray() { return enter(); }
    bool EndArray(unsigned count);

    // Never called: numbers come as their text.
    bool Int(int) { return false; }
    bool Uint(unsigned) { return false; }
    bool Int64(qint64) { return false; }
    bool Uint64(quint64) { return false; }
    bool Double(double) { return false; }

    /// The finished document.
    Value takeRoot();
    const char* fault() const { return m_fault; }
    /// Whether the fault is that the last bracket goes too deep.
    bool isTooDeep() const { return m_depth > kDeepest; }

private:
    template<typename... Args>
    bool add(Args&&... args)
    {
        m_open.push(std::forward<Args>(args)...);
        return true;
    }
    bool addReal(std::string_view text);
    bool enter();
    bool refuse(const char* fault);

    // The values that wait for the end of the array or object that they belong to.
    ValueStack m_open;
    BlockArena m_arena;
    const char* m_fault = nullptr;
    int m_depth = 0;
    bool m_escapes;
};

} // namespace Json
} // namespace kql
