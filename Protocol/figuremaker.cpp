#include "Protocol/figuremaker.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"

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
        figure->figure()->setEdgeLabelMode(data.getTemplate()->edgeLabels(item));
    return figure;
}

DrawItemForbidenAreaType FigureMaker::forbiddenType(const RuleData& data,
                                                    const RuleProtocolItem& item)
{
    return data.getTemplate()->forbiddenArea(item);
}
