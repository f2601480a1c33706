#pragma once

/// Crossing direction of a figure, seen along its points in drawing order.
enum class BaseDrawDirectionType : int {
    None = 0,
    RightToLeft = 1,
    LeftToRight = 2,
    Both = 3,
};
