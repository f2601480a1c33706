#include "Protocol/lanes/lanesdata.h"

#include "Protocol/lanes/lanestemplate.h"

LanesData::LanesData()
{
    setSceneType(SceneType::Lanes);
    setTemplate(std::make_unique<LanesTemplate>());
    setRuleFucTitle(RuleData::tr("Lanes"));
}
