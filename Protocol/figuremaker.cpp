#include "Protocol/figuremaker.h"

#include "Protocol/calibration/calibrateareatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"

namespace
{

EdgeLabelMode edgeLabelMode(const RuleData& data, const RuleProtocolItem& item)
{
    if (data.getSceneType() != SceneType::CalibrateArea)
        return EdgeLabelMode::Name;
    const auto* const area = dynamic_cast<const CalibrateAreaTemplate*>(data.getTemplate());
    if (!area || &item != area->regionItem())
        return EdgeLabelMode::Name;
    if (area->isLaneMethod())
        return EdgeLabelMode::LengthAndWidth;
    return area->isSceneMethod() ? EdgeLabelMode::Scene : EdgeLabelMode::Name;
}

} // namespace

std::unique_ptr<DrawItem> FigureMaker::make(const RuleData& data, const RuleProtocolItem& item,
                                            int dataId, DrawItemForbidenAreaType forbidden)
{
    const BaseDrawType type = item.drawType();
    if (type == BaseDrawType::None)
        return nullptr;
    auto figure = std::make_unique<DrawItem>(type);
    figure->setDataId(dataId);
    figure->setTemplateKey(item.key());
    figure->setForbidenAreaType(forbidden);
    if (const auto limits = item.figurePointLimits())
        figure->setPointLimits(limits->min, limits->max);
    if (figure->figure())
        figure->figure()->setEdgeLabelMode(edgeLabelMode(data, item));
    return figure;
}

DrawItemForbidenAreaType FigureMaker::forbiddenType(const RuleData& data,
                                                    const RuleProtocolItem& item)
{
    if (item.linkedItem())
        return DrawItemForbidenAreaType::ForbidenOutsideParent;
    switch (data.getSceneType()) {
    case SceneType::CalibrateArea:
        return DrawItemForbidenAreaType::ForbidenOtherItems;
    case SceneType::Lanes:
        // Whatever else is drawn in this scene belongs to a lane.
        return item.drawType() == BaseDrawType::VehicleLane
                   ? DrawItemForbidenAreaType::ForbidenSelf
                   : DrawItemForbidenAreaType::ForbidenOutsideParent;
    default:
        return DrawItemForbidenAreaType::ForbidenNone;
    }
}
