#pragma once

#include <QString>

#include <algorithm>
#include <cstddef>

namespace kql
{
namespace Json
{

/**
 * A text that a JSON writer writes, UTF-16, without another copy of it. It is indented by 32 levels
 * at most, and given up when it becomes longer than 256 million characters: short documents can be
 * nested so that their styled text has hundreds of times their length.
 */
class TextStream
{
public:
    using Ch = ushort;

    /// So many characters indent a line at most.
    static constexpr std::size_t kDeepest = std::size_t(4) * 32;

    TextStream() { grow(0); }

    /// Makes room for @p count characters more.
    void reserve(std::size_t count)
    {
        if (count > std::size_t(m_end - m_next))
            grow(count);
    }
    /// Adds a character for which there is room.
    void put(Ch c) { *m_next++ = c; }
    void indent(Ch c, std::size_t count)
    {
        count = std::min(count, kDeepest);
        reserve(count);
        m_next = std::fill_n(m_next, count, c);
    }
    /// All that was written, null if that was too long. The stream is not used any more then.
    QString take();

    // What the writer asks of a stream besides.
    void Put(Ch c)
    {
        reserve(1);
        put(c);
    }
    void Flush() {}

private:
    void grow(std::size_t count);

    QString m_text; ///< as long as there is room
    Ch* m_next = nullptr;
    Ch* m_end = nullptr;
    bool m_isTooLong = false;
};

// The writer's own versions of these know no room.

inline void PutReserve(TextStream& stream, std::size_t count)
{
    stream.reserve(count);
}

inline void PutUnsafe(TextStream& stream, TextStream::Ch c)
{
    stream.put(c);
}

inline void PutN(TextStream& stream, TextStream::Ch c, std::size_t count)
{
    stream.indent(c, count);
}

} // namespace Json
} // namespace kql
