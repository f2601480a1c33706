#include "draw/rectangledraw.h"

#include "draw/canvasfigure.h"
#include "draw/figurepainter.h"

void RectangleDraw::paint(const FigurePainter& painter, const CanvasFigure& shown) const
{
    const QLine diagonal = shown.firstEdge();
    painter.rectangle(diagonal.p1(), diagonal.p2());
}
