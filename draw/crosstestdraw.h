#pragma once

#include "draw/basedraw.h"

/// Two segments. Of no kind of its own, so that no template can ask for it.
class CrossTestDraw final : public BaseDraw
{
public:
    CrossTestDraw();

protected:
    void paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
               const std::optional<QPoint>& canvasMovePoint) const override;
};
