#include "scene/drawinghint.h"

#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "host/api/limits.h"

#include <algorithm>

namespace
{

bool hasCorrectable(const DrawScene& canvas)
{
    const auto figures = canvas.getItemListByDataId(canvas.currentDataId());
    return std::any_of(figures.begin(), figures.end(), [](const DrawItem* figure) {
        return figure->value().pointCount() <= Limits::kCorrectedPoints;
    });
}

} // namespace

QString DrawingHint::of(const DrawScene& canvas)
{
    if (canvas.refusal() == DrawRefusal::Crossing)
        return tr("Refused: lines would cross.");
    if (canvas.refusal() == DrawRefusal::Outside)
        return tr("Refused: outside its area.");
    if (canvas.refusal() == DrawRefusal::Forbidden)
        return tr("Refused: the place is taken.");
    if (canvas.refusal() == DrawRefusal::Inside)
        return tr("Refused: a figure inside would be outside.");
    if (canvas.refusal() == DrawRefusal::Needed)
        return tr("Refused: it needs all its corners.");
    if (!canvas.isDrawing())
        return hasCorrectable(canvas) ? tr("Drag corners to correct, with Ctrl the figure.")
                                      : tr("Redraw draws the figure anew.");
    const BaseDraw& drawn = *canvas.selectedItem(canvas.currentDataId())->figure();
    const int needed = drawn.clicksNeeded();
    if (needed == 0)
        return tr("Right click or Enter finishes.");
    return drawn.pointCount() == 0 ? tr("Left click adds a point. Still needed: %1.").arg(needed)
                                   : tr("Still needed: %1. Backspace takes one back.").arg(needed);
}
