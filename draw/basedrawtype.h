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
