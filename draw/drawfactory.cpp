#include "draw/drawfactory.h"

#include "draw/directiondraw.h"
#include "draw/directionlinedraw.h"
#include "draw/horizontalrulerdraw.h"
#include "draw/parallelogramdraw.h"
#include "draw/polygondraw.h"
#include "draw/rectangledraw.h"
#include "draw/rulerdraw.h"
#include "draw/vehiclelanedraw.h"
#include "draw/verticalrulerdraw.h"

std::shared_ptr<BaseDraw> createDraw(BaseDrawType type)
{
    switch (type) {
    case BaseDrawType::None:
        break;
    case BaseDrawType::Polygon:
        return std::make_shared<PolygonDraw>();
    case BaseDrawType::DirectionLine:
        return std::make_shared<DirectionLineDraw>();
    case BaseDrawType::Rectangle:
        return std::make_shared<RectangleDraw>();
    case BaseDrawType::Ruler:
        return std::make_shared<RulerDraw>();
    case BaseDrawType::HorizontalRuler:
        return std::make_shared<HorizontalRulerDraw>();
    case BaseDrawType::VerticalRuler:
        return std::make_shared<VerticalRulerDraw>();
    case BaseDrawType::Direction:
        return std::make_shared<DirectionDraw>();
    case BaseDrawType::VehicleLane:
        return std::make_shared<VehicleLaneDraw>();
    case BaseDrawType::Parallelogram:
        return std::make_shared<ParallelogramDraw>();
    }
    return nullptr;
}
