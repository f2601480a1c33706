#include "Protocol/configreader.h"

#include "Protocol/calibration/calibrateareadata.h"
#include "Protocol/calibration/calibrateareareader.h"
#include "Protocol/detection/detectionreader.h"
#include "Protocol/fight/fightcalibratedata.h"
#include "Protocol/fight/fightcalibratereader.h"
#include "Protocol/lanes/lanesdata.h"
#include "Protocol/lanes/lanesreader.h"
#include "Protocol/rules/rulesreader.h"

namespace
{

void readScene(RuleData& data, const kql::Json::Value& document)
{
    switch (data.getSceneType()) {
    case SceneType::CalibrateArea:
        return CalibrateAreaReader::read(static_cast<CalibrateAreaData&>(data), document);
    case SceneType::FightCalibrate:
        return FightCalibrateReader::read(static_cast<FightCalibrateData&>(data), document);
    case SceneType::Lanes:
        return LanesReader::read(static_cast<LanesData&>(data), document);
    case SceneType::Rules:
    case SceneType::Global:
        return RulesReader::read(data, document);
    case SceneType::Detection:
        return DetectionReader::read(data, document);
    case SceneType::None:
        return;
    }
}

} // namespace

ConfigReader::ConfigReader(const std::vector<std::unique_ptr<RuleData>>& scenes) : m_scenes(scenes)
{
}

void ConfigReader::read(const kql::Json::Value& document)
{
    for (const auto& scene : m_scenes)
        readScene(*scene, document);
}
