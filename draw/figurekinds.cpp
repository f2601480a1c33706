#include "draw/figurekinds.h"

#include "draw/directiondraw.h"
#include "draw/directionlinedraw.h"
#include "draw/horizontalrulerdraw.h"
#include "draw/parallelogramdraw.h"
#include "draw/polygondraw.h"
#include "draw/rectangledraw.h"
#include "draw/rulerdraw.h"
#include "draw/vehiclelanedraw.h"
#include "draw/verticalrulerdraw.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace
{

constexpr int kAnyNumber = std::numeric_limits<int>::max();

template<typename Draw>
std::shared_ptr<BaseDraw> make(const Figure& figure)
{
    return std::make_shared<Draw>(figure);
}

const FigureKind kKinds[] = {
    {BaseDrawType::Polygon, {0, 0}, {3, kAnyNumber}, FigureForm::Ring, &make<PolygonDraw>},
    {BaseDrawType::DirectionLine,
     {2, 2},
     {2, kAnyNumber},
     FigureForm::Line,
     &make<DirectionLineDraw>},
    {BaseDrawType::Rectangle, {2, 2}, {2, 2}, FigureForm::Box, &make<RectangleDraw>},
    {BaseDrawType::Ruler, {2, 2}, {2, 2}, FigureForm::Line, &make<RulerDraw>},
    {BaseDrawType::HorizontalRuler, {2, 2}, {2, 2}, FigureForm::Line, &make<HorizontalRulerDraw>},
    {BaseDrawType::VerticalRuler,
     {2, 2},
     {2, 2},
     FigureForm::UprightLine,
     &make<VerticalRulerDraw>},
    {BaseDrawType::Direction, {2, 2}, {2, 2}, FigureForm::Line, &make<DirectionDraw>},
    {BaseDrawType::VehicleLane, {4, 4}, {4, 4}, FigureForm::TwoLines, &make<VehicleLaneDraw>},
    {BaseDrawType::Parallelogram,
     {4, 4},
     {4, 4},
     FigureForm::Parallelogram,
     &make<ParallelogramDraw>},
};

} // namespace

const FigureKind* FigureKind::find(BaseDrawType type)
{
    const auto found = std::find_if(std::begin(kKinds), std::end(kKinds),
                                    [type](const FigureKind& kind) { return kind.type == type; });
    return found == std::end(kKinds) ? nullptr : found;
}

FigureForm FigureKind::formOf(BaseDrawType type)
{
    const FigureKind* kind = find(type);
    return kind ? kind->form : FigureForm::None;
}

std::shared_ptr<BaseDraw> createDraw(BaseDrawType type)
{
    const FigureKind* kind = FigureKind::find(type);
    return kind ? kind->make(Figure(kind->type, kind->limits)) : nullptr;
}
