#pragma once

#include "draw/figure.h"

#include <memory>

class BaseDraw;

/// How a figure lies between its points, and what goes along when one of them is moved.
enum class FigureForm : unsigned char {
    None,
    Line,          ///< open, from point to point
    UprightLine,   ///< of two points, one above the other
    Ring,          ///< closed
    Parallelogram, ///< a ring; the first point goes with the fourth, the second with the third
    Box,           ///< two opposite corners
    TwoLines,      ///< the first two points, and the next two
};

/**
 * A row of the one table of kinds of figures. A new kind gets a number, a row, and a class that
 * says how it is drawn and painted.
 */
struct FigureKind {
    /// A new object for the canvas that holds @p figure.
    using Maker = std::shared_ptr<BaseDraw> (*)(const Figure& figure);

    BaseDrawType type;
    PointLimits limits;     ///< of a new figure
    PointLimits openLimits; ///< where a template leaves them open
    FigureForm form;
    Maker make;

    /// Null for None and for unknown kinds.
    static const FigureKind* find(BaseDrawType type);
    /// None for unknown kinds.
    static FigureForm formOf(BaseDrawType type);
};

/// A new figure of kind @p type; null for None and for unknown kinds.
std::shared_ptr<BaseDraw> createDraw(BaseDrawType type);
