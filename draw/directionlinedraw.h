#pragma once

#include "draw/basedraw.h"

/// A trip line with an arrow across each segment for the crossing direction.
class DirectionLineDraw final : public BaseDraw
{
public:
    DirectionLineDraw();

    bool addPoint(int x, int y) override;

protected:
    void paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
               const std::optional<QPoint>& canvasMovePoint) const override;
};
