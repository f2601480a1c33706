#include "Protocol/linedirections.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/spelling.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"

QString LineDirections::key()
{
    return QStringLiteral("ruleLineDirection");
}

void LineDirections::giveTo(DrawItem& figure, const RuleDataInfo& entry)
{
    const QVariant direction = entry.value(key());
    if (figure.drawType() == BaseDrawType::DirectionLine && direction.isValid())
        figure.setDirection(Spelling::toDirectionType(direction.toString()));
}

void LineDirections::apply(const RuleData& data, const RuleDataInfo& entry)
{
    if (!entry.value(key()).isValid())
        return;
    const auto lines = data.getDrawScene()->getItemList(BaseDrawType::DirectionLine, entry.id());
    for (DrawItem* line : lines)
        giveTo(*line, entry);
}
