#include "Protocol/figurereader.h"

#include "Protocol/datatemplate.h"
#include "Protocol/figuremaker.h"
#include "Protocol/pointconversion.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "host/api/limits.h"

namespace
{

constexpr int kNoParent = -1;

} // namespace

DrawItem* FigureReader::add(const RuleProtocolItem& item, const RuleDataInfo& entry,
                            const QVector<QPoint>& points, const QString& label,
                            DrawItem* parent) const
{
    if (!m_data.takeText(Limits::kFigureText + qint64{Limits::kPointText} * points.size()))
        return nullptr;
    const DataTemplate& dataTemplate = *m_data.getTemplate();
    auto drawItem = FigureMaker::make(dataTemplate, item, entry, dataTemplate.forbiddenArea(item));
    if (!drawItem || !drawItem->figure())
        return nullptr;
    Figure figure = drawItem->figure()->figure();
    figure.setLabel(label);
    figure.setPoints(points);
    figure.setFinished(true);
    drawItem->figure()->setFigure(figure);
    return parent ? parent->addChild(std::move(drawItem))
                  : m_data.getDrawScene()->addItem(std::move(drawItem), kNoParent);
}

DrawItem* FigureReader::read(const RuleProtocolItem& item, const RuleDataInfo& entry,
                             const kql::Json::Value& json, const QString& label) const
{
    const kql::Json::Value* const found = item.path().readPath(json);
    return found && found->isArray() ? add(item, entry, PointConversion::toPoints(*found), label)
                                     : nullptr;
}
