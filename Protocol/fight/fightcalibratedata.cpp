#include "Protocol/fight/fightcalibratedata.h"

#include "Protocol/fight/fightcalibratetemplate.h"

FightCalibrateData::FightCalibrateData()
{
    setSceneType(SceneType::FightCalibrate);
    setTemplate(std::make_unique<FightCalibrateTemplate>());
    setRuleFucTitle(RuleData::tr("Area"));
}
