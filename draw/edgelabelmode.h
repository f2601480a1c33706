#pragma once

/// What a finished polygon writes along its edges.
enum class EdgeLabelMode : unsigned char {
    Name = 0,           ///< the figure's label along the first edge
    LengthAndWidth = 1, ///< "Length" along the first edge, "Width" along the second
    Scene = 2,          ///< as Name; marks an area measured by staffs
};
