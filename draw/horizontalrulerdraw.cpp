#include "draw/horizontalrulerdraw.h"

#include "draw/canvasfigure.h"
#include "draw/figurepainter.h"

void HorizontalRulerDraw::paint(const FigurePainter& painter, const CanvasFigure& shown) const
{
    painter.line(shown.firstEdge());
    painter.name(shown);
}
