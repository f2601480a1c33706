#pragma once

#include <string_view>

/// Looks into the text of a JSON object that the reader has accepted, comments included.
namespace RawMember
{

/// The value of the object's last member that is written as @p name, as it stands in @p object;
/// empty where there is none, or where its name is written with escapes.
std::string_view find(std::string_view object, std::string_view name);

} // namespace RawMember
