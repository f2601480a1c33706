#include "draw/figuresurroundings.h"

#include "draw/basedraw.h"
#include "draw/canvasfigure.h"
#include "draw/drawgeometry.h"
#include "draw/drawitem.h"
#include "draw/forbidenarea.h"

std::unique_ptr<ForbidenArea> FigureSurroundings::forbidenTo(const DrawItem& item,
                                                             DrawItemForbidenAreaType type,
                                                             const DrawItem* except) const
{
    const bool isOutside = type == DrawItemForbidenAreaType::ForbidenOutsideParent;
    if (!isOutside && type != DrawItemForbidenAreaType::ForbidenOtherItems)
        return nullptr;
    auto area = std::make_unique<ForbidenArea>(
        std::make_unique<Gdiplus::GraphicsPath>(isOutside ? Gdiplus::FillModeAlternate
                                                          : Gdiplus::FillModeWinding),
        canvasSize);
    const DrawItem* parent = isOutside ? item.parent() : nullptr;
    if (parent && parent->figure() && parent->drawType() != BaseDrawType::VehicleLane) {
        area->addCanvas();
        area->addOutline(parent->figure()->canvasFigure().outline());
    }
    for (const DrawItem* other : items) {
        if (!isOutside && other->figure() && other != except)
            area->addOutline(DrawGeometry::clockwise(other->figure()->canvasFigure().outline()));
    }
    return area;
}
