#pragma once

/// Kind of a figure. The numbers are interface: buttons, messages and templates use them.
enum class BaseDrawType : int {
    None = 0,
    Polygon = 1,
    DirectionLine = 2,
    Rectangle = 3,
    Ruler = 4,
    HorizontalRuler = 5,
    VerticalRuler = 6,
    Direction = 7,
    VehicleLane = 8,
    Parallelogram = 9,
};

/// Crossing direction of a figure, seen along its points in drawing order.
enum class BaseDrawDirectionType : unsigned char {
    None = 0,
    RightToLeft = 1,
    LeftToRight = 2,
    Both = 3,
};

/// What a finished polygon writes along its edges.
enum class EdgeLabelMode : unsigned char {
    Name = 0,           ///< the figure's label along the first edge
    LengthAndWidth = 1, ///< "Length" along the first edge, "Width" along the second
    Scene = 2,          ///< as Name; marks an area measured by staffs
};

/// Where the points of a figure being drawn may not fall.
enum class DrawItemForbidenAreaType : int {
    ForbidenNone = 0,
    ForbidenOtherItems = 1,    ///< not inside any figure already on the canvas
    ForbidenOutsideParent = 2, ///< only inside the parent's figure, unless that is a vehicle lane
    ForbidenSelf = 3,          ///< not inside the figure's own forbidden area
};

/// Why a point was not added, or a figure may not lie where it was moved to.
enum class DrawRefusal : unsigned char {
    None = 0,
    Crossing,  ///< a line would cross another one of the figure
    Outside,   ///< of the figure around
    Forbidden, ///< it lies where the figure may not
    Inside,    ///< a figure inside of it would be outside
    Needed,    ///< the figure has no corner too many
};
