#pragma once

#include "draw/basedraw.h"

/// An arrow that shows a direction of movement.
class DirectionDraw final : public BaseDraw
{
public:
    DirectionDraw();

protected:
    void paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
               const std::optional<QPoint>& canvasMovePoint) const override;
};
