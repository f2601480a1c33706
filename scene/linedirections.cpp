#include "scene/linedirections.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"

QString LineDirections::key()
{
    return QStringLiteral("ruleLineDirection");
}

void LineDirections::apply(const RuleData& data, const RuleDataInfo& entry)
{
    const QVariant value = entry.value(key());
    if (!value.isValid())
        return;
    const auto direction = RuleParser::parseToDirectionType(value.toString());
    const auto lines = data.getDrawScene()->getItemList(BaseDrawType::DirectionLine, entry.id());
    for (DrawItem* line : lines)
        line->setDirection(direction);
}
