#include "host/json/utf8check.h"

#include <cstdint>
#include <cstring>

namespace kql
{

namespace
{

bool allAscii(const char* eightBytes) noexcept
{
    std::uint64_t word;
    std::memcpy(&word, eightBytes, sizeof word);
    return (word & 0x8080808080808080u) == 0;
}

struct LeadByte {
    std::size_t length;
    unsigned char secondLow;
    unsigned char secondHigh;
};

/// Length of the sequence that a byte opens (0: none) and the range of the byte after it.
LeadByte leadByte(unsigned char byte) noexcept
{
    if (byte < 0x80)
        return {1, 0, 0};
    if (byte < 0xC2 || byte > 0xF4)
        return {0, 0, 0};
    if (byte < 0xE0)
        return {2, 0x80, 0xBF};
    if (byte < 0xF0)
        return {3, static_cast<unsigned char>(byte == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(byte == 0xED ? 0x9F : 0xBF)};
    return {4, static_cast<unsigned char>(byte == 0xF0 ? 0x90 : 0x80),
            static_cast<unsigned char>(byte == 0xF4 ? 0x8F : 0xBF)};
}

/// Length of the valid sequence at the start of a text that is not empty, 0 if there is none.
std::size_t sequenceLength(std::string_view text) noexcept
{
    const auto byte = [&text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    const LeadByte lead = leadByte(byte(0));
    if (lead.length > text.size())
        return 0;
    if (lead.length > 1 && (byte(1) < lead.secondLow || byte(1) > lead.secondHigh))
        return 0;
    for (std::size_t at = 2; at < lead.length; ++at) {
        if ((byte(at) & 0xC0) != 0x80)
            return 0;
    }
    return lead.length;
}

} // namespace

std::size_t firstInvalidUtf8(std::string_view text) noexcept
{
    std::size_t at = 0;
    while (at < text.size()) {
        if (text.size() - at >= 8 && allAscii(text.data() + at)) {
            at += 8;
            continue;
        }
        const std::size_t length = sequenceLength(text.substr(at));
        if (length == 0)
            return at;
        at += length;
    }
    return at;
}

} // namespace kql
