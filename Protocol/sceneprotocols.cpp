#include "Protocol/sceneprotocols.h"

#include "Protocol/calibration/calibrateareaprotocol.h"
#include "Protocol/detection/detectionprotocol.h"
#include "Protocol/fight/fightcalibrateprotocol.h"
#include "Protocol/lanes/lanesprotocol.h"
#include "Protocol/rules/rulesprotocol.h"

const SceneProtocol& sceneProtocol(SceneType type)
{
    static const CalibrateAreaProtocol calibrateArea;
    static const FightCalibrateProtocol fightCalibrate;
    static const LanesProtocol lanes;
    static const RulesProtocol rules;
    static const GlobalProtocol global;
    static const DetectionProtocol detection;
    switch (type) {
    case SceneType::CalibrateArea:
        return calibrateArea;
    case SceneType::FightCalibrate:
        return fightCalibrate;
    case SceneType::Lanes:
        return lanes;
    case SceneType::Rules:
        return rules;
    case SceneType::Detection:
        return detection;
    case SceneType::Global:
    case SceneType::None:
        break;
    }
    return global;
}
