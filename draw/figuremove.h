#pragma once

#include "draw/figure.h"

#include <vector>

/**
 * A figure of which a corner, or the whole, is being moved: what goes along, and where it ends.
 * Everything is in normalized space (0..8192).
 */
class FigureMove
{
public:
    /// Everything, the points of the direction too.
    static FigureMove ofWhole(const Figure& figure);
    /// The corner @p index, and what kinds of figures move with it. Of a rectangle it is one of
    /// four, of which the first and the third are its points.
    static FigureMove ofCorner(const Figure& figure, int index);
    /// A new corner in the middle of the line @p index, after whose start it comes.
    static FigureMove ofNewCorner(const Figure& figure, int index);

    /// As it was before, without a new corner.
    const Figure& original() const { return m_original; }
    /// The figure moved by @p difference, or as far of it as the picture goes: it stops where a
    /// point would leave, on each axis. By nothing it is the original.
    Figure by(const QPoint& difference) const;
    /// Whether @p child is a line from one corner of an area of known size to another, as the
    /// staffs that say its length and width are. It is no figure of its own.
    static bool carries(const Figure& area, const Figure& child);
    /// Where @p child goes that is carried when the figure becomes @p moved.
    Figure carried(const Figure& child, const Figure& moved) const;
    /// The point of the original that came to be point @p index; -1 for a new one.
    int originOf(int index) const;

private:
    struct Coordinate {
        int index;
        bool isMovedX;
        bool isMovedY;
    };

    FigureMove(const Figure& original, const Figure& start);
    QPoint stopped(const QPoint& difference) const;

    Figure m_original;
    Figure m_start; ///< the original with the new corner, if any
    std::vector<Coordinate> m_moved;
    int m_newIndex = -1;
    bool m_isWhole = false;
};
