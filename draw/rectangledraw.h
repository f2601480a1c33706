#pragma once

#include "draw/basedraw.h"

/// An upright rectangle between two corners.
class RectangleDraw final : public BaseDraw
{
public:
    RectangleDraw();

protected:
    void paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
               const std::optional<QPoint>& canvasMovePoint) const override;
};
