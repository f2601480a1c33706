#pragma once

#include "tools/rulesctl/lint/finding.h"

#include <string_view>

/// Places findings in the text of their document.
namespace Positions
{

/// Gives each of @p findings the line and column of what its pointer names, and sorts them by that,
/// then by code. @p utf8 is what the document was read from; @p base points to the part of it that
/// the pointers start at. Of members with one name, the last, which the reader takes, is meant.
void place(Findings& findings, std::string_view utf8, std::string_view base = {});

} // namespace Positions
