#pragma once

#include <QPoint>
#include <QVector>
#include <optional>

class CanvasFigure;

/// A place of a figure at which the mouse can take hold of it.
struct FigureHandle {
    enum class Kind {
        Corner, ///< moves a corner
        Middle, ///< of a line: adds a corner there
    };

    Kind kind = Kind::Corner;
    int index = 0; ///< of the corner, or of the line
    QPoint at;     ///< canvas pixels

    /// Those of @p figure: all corners, and the middles of lines where it takes more points. None
    /// of a figure with so many points that they would be no help.
    static QVector<FigureHandle> of(const CanvasFigure& figure);
    /// The one nearest to @p at of those within reach, of equals a corner before a middle.
    static std::optional<FigureHandle> nearest(const QVector<FigureHandle>& handles,
                                               const QPoint& at);
    /// Whether a mouse at @p place means this handle rather than @p other; of two equals neither.
    bool isBefore(const FigureHandle& other, const QPoint& place) const;
};
