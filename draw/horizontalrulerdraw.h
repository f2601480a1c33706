#pragma once

#include "draw/basedraw.h"

/// A labelled line that measures a width.
class HorizontalRulerDraw final : public BaseDraw
{
public:
    HorizontalRulerDraw();

protected:
    void paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
               const std::optional<QPoint>& canvasMovePoint) const override;
};
