#include "draw/directiondraw.h"

#include "draw/canvasfigure.h"
#include "draw/figurepainter.h"

void DirectionDraw::paint(const FigurePainter& painter, const CanvasFigure& shown) const
{
    painter.line(shown.firstEdge());
    painter.arrowhead(shown.firstEdge());
}
