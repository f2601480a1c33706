#include "draw/rulerdraw.h"

#include "draw/figurepainter.h"

void RulerDraw::paint(const FigurePainter& painter, const CanvasFigure& shown) const
{
    painter.staff(shown);
}
