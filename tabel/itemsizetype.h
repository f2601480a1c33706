#pragma once

/// How a table arranges its children.
enum class ItemSizeType : int {
    ItemFixCount = 0, ///< columns of equal width
    ItemFlow = 1,     ///< one after the other, wrapping at the right edge
    ItemFixSize = 2,  ///< cells of one size, as many columns as fit
};
