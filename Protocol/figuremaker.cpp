#include "Protocol/figuremaker.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"

std::unique_ptr<DrawItem> FigureMaker::make(const DataTemplate& dataTemplate,
                                            const RuleProtocolItem& item, const RuleDataInfo& entry,
                                            DrawItemForbidenAreaType forbidden)
{
    const BaseDrawType type = item.drawType();
    if (type == BaseDrawType::None)
        return nullptr;
    auto figure = std::make_unique<DrawItem>(type);
    figure->setDataId(entry.id());
    figure->setTemplateKey(item.key());
    figure->setForbidenAreaType(forbidden);
    if (const auto limits = item.figurePointLimits())
        figure->setPointLimits(limits->min, limits->max);
    if (figure->figure())
        figure->figure()->setEdgeLabelMode(dataTemplate.edgeLabels(item));
    figure->setLabel(item.caption());
    return figure;
}
