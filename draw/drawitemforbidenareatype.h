#pragma once

/// Where the points of a figure being drawn may not fall.
enum class DrawItemForbidenAreaType : int {
    ForbidenNone = 0,
    ForbidenOtherItems = 1,    ///< not inside any figure already on the canvas
    ForbidenOutsideParent = 2, ///< only inside the parent's figure, unless that is a vehicle lane
    ForbidenSelf = 3,          ///< not inside the figure's own forbidden area
};
