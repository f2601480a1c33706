#pragma once

#include "draw/basedraw.h"

/// A staff of known length: a line with a tick at each end.
class RulerDraw : public BaseDraw
{
public:
    RulerDraw();

protected:
    explicit RulerDraw(BaseDrawType type);
    void paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
               const std::optional<QPoint>& canvasMovePoint) const override;
};
