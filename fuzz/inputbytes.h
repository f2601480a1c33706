#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace Fuzz
{

/// Takes an input apart, byte by byte; zeros once it is used up.
class InputBytes
{
public:
    explicit InputBytes(std::string_view bytes) : m_bytes(bytes) {}

    bool atEnd() const { return m_bytes.empty(); }

    int byte()
    {
        if (atEnd())
            return 0;
        const auto value = static_cast<unsigned char>(m_bytes.front());
        m_bytes.remove_prefix(1);
        return value;
    }

    /// Any int.
    int number()
    {
        std::uint32_t value = 0;
        for (int i = 0; i < 4; ++i)
            value = value << 8U | static_cast<std::uint32_t>(byte());
        return static_cast<int>(value);
    }

private:
    std::string_view m_bytes;
};

/// The parts of @p text, of which there is at least one.
inline std::vector<std::string_view> split(std::string_view text, std::string_view separator)
{
    std::vector<std::string_view> parts;
    for (std::size_t at = text.find(separator); at != std::string_view::npos;
         at = text.find(separator)) {
        parts.push_back(text.substr(0, at));
        text.remove_prefix(at + separator.size());
    }
    parts.push_back(text);
    return parts;
}

} // namespace Fuzz
