#pragma once

#include "draw/figure.h"

#include <memory>

class BaseDraw;

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
    Maker make;

    /// Null for None and for unknown kinds.
    static const FigureKind* find(BaseDrawType type);
};

/// A new figure of kind @p type; null for None and for unknown kinds.
std::shared_ptr<BaseDraw> createDraw(BaseDrawType type);
