#include "draw/crosstestdraw.h"

#include "draw/canvasfigure.h"
#include "draw/figurepainter.h"

CrossTestDraw::CrossTestDraw() : BaseDraw(Figure(BaseDrawType::None, {4, 4})) {}

void CrossTestDraw::paint(const FigurePainter& painter, const CanvasFigure& shown) const
{
    painter.twoLines(shown.shownPoints());
}
