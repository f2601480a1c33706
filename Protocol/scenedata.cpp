#include "Protocol/scenedata.h"

#include "Protocol/calibration/calibrateareatemplate.h"
#include "Protocol/fight/fightcalibratetemplate.h"
#include "Protocol/lanes/lanestemplate.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"

#include <utility>

CalibrateAreaData::CalibrateAreaData()
{
    setSceneType(SceneType::CalibrateArea);
    setTemplate(std::make_unique<CalibrateAreaTemplate>());
    setRuleFucTitle(RuleData::tr("Area"));
}

void CalibrateAreaData::collectNotices(QStringList& notices) const
{
    const CalibrateAreaTemplate* const area = CalibrateAreaTemplate::of(*this);
    if (!area)
        return;
    const bool isScene = area->isSceneMethod();
    const std::pair<QString, QString> lengths[] = {
        {area->verticalLengthItem()->key(),
         isScene ? tr("%1 has no vertical length.") : tr("%1 has no length.")},
        {area->horizontalLengthItem()->key(),
         isScene ? tr("%1 has no horizontal length.") : tr("%1 has no width.")}};
    int number = 0;
    for (const auto& entry : getAllData()) {
        const QString name = getRuleFucTitle() + QString::number(++number);
        for (const auto& [key, notice] : lengths) {
            if (!entry->value(key).isValid() && !entry->isMisfit(key))
                notices.append(notice.arg(name));
        }
    }
}

FightCalibrateData::FightCalibrateData()
{
    setSceneType(SceneType::FightCalibrate);
    setTemplate(std::make_unique<FightCalibrateTemplate>());
    setRuleFucTitle(RuleData::tr("Area"));
}

LanesData::LanesData()
{
    setSceneType(SceneType::Lanes);
    setTemplate(std::make_unique<LanesTemplate>());
    setRuleFucTitle(RuleData::tr("Lanes"));
}
