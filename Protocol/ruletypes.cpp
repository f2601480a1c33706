#include "Protocol/ruletypes.h"

BaseDrawType toDrawType(FacadeType facade)
{
    switch (facade) {
    case FacadeType::Region:
        return BaseDrawType::Polygon;
    case FacadeType::Line:
        return BaseDrawType::DirectionLine;
    case FacadeType::DirectLine:
        return BaseDrawType::Direction;
    case FacadeType::Rect:
        return BaseDrawType::Rectangle;
    case FacadeType::VerticalStaff:
        return BaseDrawType::VerticalRuler;
    case FacadeType::HorizontalStaff:
        return BaseDrawType::HorizontalRuler;
    case FacadeType::Lane:
        return BaseDrawType::VehicleLane;
    case FacadeType::Parallelogram:
        return BaseDrawType::Parallelogram;
    default:
        return BaseDrawType::None;
    }
}
