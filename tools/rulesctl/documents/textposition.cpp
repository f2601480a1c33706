#include "tools/rulesctl/documents/textposition.h"

#include <algorithm>

TextPosition TextPosition::of(std::string_view utf8, std::size_t offset)
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    std::string_view before = utf8.substr(0, std::min(offset, utf8.size()));
    if (before.substr(0, kByteOrderMark.size()) == kByteOrderMark)
        before.remove_prefix(kByteOrderMark.size());
    const std::string_view line = before.substr(before.rfind('\n') + 1);
    const auto isFirstByte = [](char c) { return (c & 0xC0) != 0x80; };
    return {1 + static_cast<int>(std::count(before.begin(), before.end(), '\n')),
            1 + static_cast<int>(std::count_if(line.begin(), line.end(), isFirstByte))};
}
