#include "Protocol/calibrateareadata.h"

#include "Protocol/calibrateareatemplate.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"

CalibrateAreaData::CalibrateAreaData()
{
    setSceneType(SceneType::CalibrateArea);
    setTemplate(std::make_unique<CalibrateAreaTemplate>());
    setRuleFucTitle(RuleData::tr("Area"));
}

CalibrateAreaTemplate* CalibrateAreaData::calibrateTemplate() const
{
    return dynamic_cast<CalibrateAreaTemplate*>(getTemplate());
}

void CalibrateAreaData::fillNewEntry(RuleDataInfo& entry) const
{
    const CalibrateAreaTemplate* const area = calibrateTemplate();
    if (area && area->defaultHeight())
        entry.setValue(area->verticalLengthItem()->key(), *area->defaultHeight());
    if (area && area->defaultWidth())
        entry.setValue(area->horizontalLengthItem()->key(), *area->defaultWidth());
}
