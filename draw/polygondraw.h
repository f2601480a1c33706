#pragma once

#include "draw/basedraw.h"

#include <QCoreApplication>

/**
 * A region. A point is refused when its edge or the closing one would cross another edge. Without
 * limits of a template it takes no point at all.
 */
class PolygonDraw final : public BaseDraw
{
    Q_DECLARE_TR_FUNCTIONS(PolygonDraw)

public:
    using BaseDraw::BaseDraw;
    std::unique_ptr<Gdiplus::GraphicsPath> getForbidenArea() const override;

protected:
    QVector<QPoint> clicked(const CanvasFigure& drawn, const QPoint& canvasPoint) const override;
    void paint(const FigurePainter& painter, const CanvasFigure& shown) const override;

private:
    static void paintLabels(const FigurePainter& painter, const CanvasFigure& shown);
};
