#pragma once

#include <cstddef>
#include <string_view>

namespace kql
{

/// The offset of the first byte that is not part of valid UTF-8, or the size of the text.
std::size_t firstInvalidUtf8(std::string_view text) noexcept;

} // namespace kql
