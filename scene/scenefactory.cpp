#include "scene/scenefactory.h"

#include "scene/calibrateareascene.h"
#include "scene/detectionscene.h"
#include "scene/fightcalibratescene.h"
#include "scene/globalscene.h"
#include "scene/lanesscene.h"
#include "scene/rulescene.h"

BaseTabelScene* createScene(SceneType type, QWidget* parent)
{
    switch (type) {
    case SceneType::CalibrateArea:
        return new CalibrateAreaScene(parent);
    case SceneType::FightCalibrate:
        return new FightCalibrateScene(parent);
    case SceneType::Lanes:
        return new LanesScene(parent);
    case SceneType::Rules:
        return new RuleScene(parent);
    case SceneType::Global:
        return new GlobalScene(parent);
    case SceneType::Detection:
        return new DetectionScene(parent);
    case SceneType::None:
        break;
    }
    return nullptr;
}
