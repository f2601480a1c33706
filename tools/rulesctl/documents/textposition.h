#pragma once

#include <cstddef>
#include <string_view>

/// A place in a text as editors count it: from 1, columns in code points.
struct TextPosition {
    int line = 1;
    int column = 1;

    /// Of the byte at @p offset of @p utf8, or of its end where that is before. A byte-order mark
    /// at its start is counted as nothing.
    static TextPosition of(std::string_view utf8, std::size_t offset);
};
