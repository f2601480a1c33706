#pragma once

#include <string>
#include <string_view>

/// Pointers into JSON documents as RFC 6901 spells them, UTF-8. The empty one is the whole
/// document.
namespace JsonPointer
{

/// Makes @p pointer lead on to the member @p name.
void append(std::string& pointer, std::string_view name);
/// Of the member @p name of what @p parent points to.
std::string member(std::string_view parent, std::string_view name);
/// Of the element at @p index, from 0.
std::string element(std::string_view parent, int index);

} // namespace JsonPointer
