#pragma once

#include "tools/rulesctl/lint/finding.h"

#include <string_view>

/// Members of one object that share a name, of which the reader takes the last.
namespace EqualNames
{

/// Adds a finding for each member in @p utf8 whose object has one of its name before, below what
/// @p base points to; pointers start there.
void find(std::string_view utf8, std::string_view base, Finding::Document document,
          Findings& findings);

} // namespace EqualNames
