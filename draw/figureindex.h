#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <functional>
#include <vector>

class DrawItem;

/**
 * The finished figures of a canvas by where they lie, so that the mouse is looked for under few of
 * them. Positions are canvas pixels; the items are not owned, and outlive the index.
 */
class FigureIndex
{
public:
    using Wanted = std::function<bool(const DrawItem&)>;

    explicit FigureIndex(const QList<DrawItem*>& items);

    /// The figures that @p at may be in or near, the one painted last first; so children
    /// come before the figure around them.
    QList<DrawItem*> around(const QPoint& at) const;
    /// The first of them that is wanted and holds @p at; else the first with a line near it, unless
    /// it must hold it. Null for none.
    DrawItem* under(const QPoint& at, const Wanted& isWanted, bool mustHold) const;

private:
    struct Place {
        QRect bounds;
        DrawItem* item;
    };
    std::vector<Place> m_places; ///< in the order of painting
};
