#pragma once

#include "draw/basedraw.h"

#include <QCoreApplication>

/// A region. Refuses points whose edges would cross others; takes none until it has limits.
class PolygonDraw final : public BaseDraw
{
    Q_DECLARE_TR_FUNCTIONS(PolygonDraw)

public:
    PolygonDraw();

    bool addPoint(int x, int y) override;
    std::unique_ptr<Gdiplus::GraphicsPath> getForbidenArea() const override;

protected:
    void paint(const FigurePainter& painter, const QVector<QPoint>& canvasPoints,
               const std::optional<QPoint>& canvasMovePoint) const override;

private:
    void paintLabels(const FigurePainter& painter, const QVector<QPoint>& canvasPoints) const;
};
