#include "draw/rulerdraw.h"

#include "draw/canvasfigure.h"
#include "draw/figurepainter.h"

void RulerDraw::paint(const FigurePainter& painter, const CanvasFigure& shown) const
{
    const QLine staff = shown.firstEdge();
    painter.line(staff);
    painter.tick(staff.p1(), staff);
    painter.tick(staff.p2(), staff);
    painter.name(shown);
}
