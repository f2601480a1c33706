#pragma once

#include <cstdint>
#include <string_view>

namespace kql
{
namespace Json
{

/**
 * A hash of a member's name that differs from process to process. Documents come from strangers,
 * who must not know which names share a place in a table: of tens of thousands of those each would
 * be compared with all others.
 */
std::uint64_t hashOfName(std::string_view name) noexcept;

} // namespace Json
} // namespace kql
