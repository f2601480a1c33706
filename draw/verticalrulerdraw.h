#pragma once

#include "draw/rulerdraw.h"

/// A staff that stands upright: its second point is kept above or below the first.
class VerticalRulerDraw final : public RulerDraw
{
public:
    VerticalRulerDraw();

    bool addPoint(int x, int y) override;
    using BaseDraw::setMovePoint;
    void setMovePoint(int x, int y) override;

private:
    /// @p canvasY in normalized space, in the first point's column.
    QPoint inColumn(int canvasY) const;
};
