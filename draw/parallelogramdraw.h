#pragma once

#include "draw/basedraw.h"

/// A parallelogram over the edge of its first two points; the third click completes it.
class ParallelogramDraw final : public BaseDraw
{
public:
    ParallelogramDraw();

    bool addPoint(int x, int y) override;

protected:
    void paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
               const std::optional<QPoint>& canvasMovePoint) const override;

private:
    void paintDirection(const FigurePainter& painter, const QVector<QPoint>& canvasPoints) const;
};
