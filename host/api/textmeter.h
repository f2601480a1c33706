#pragma once

#include "host/json/textstream.h"

namespace kql
{
namespace Json
{

/// Counts the characters that a JSON writer writes into a TextStream, and keeps none of them.
class TextMeter
{
public:
    using Ch = TextStream::Ch;

    void indent(std::size_t count) { m_length += qint64(std::min(count, TextStream::kDeepest)); }
    qint64 length() const { return m_length; }

    // What the writer asks of a stream besides.
    void Put(Ch) { ++m_length; }
    void Flush() {}

private:
    qint64 m_length = 0;
};

// As for a TextStream.

inline void PutReserve(TextMeter&, std::size_t) {}

inline void PutUnsafe(TextMeter& meter, TextMeter::Ch c)
{
    meter.Put(c);
}

inline void PutN(TextMeter& meter, TextMeter::Ch, std::size_t count)
{
    meter.indent(count);
}

} // namespace Json
} // namespace kql
