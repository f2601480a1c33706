#include "Protocol/configwriter.h"

#include "Protocol/calibration/calibrateareadata.h"
#include "Protocol/calibration/calibrateareawriter.h"
#include "Protocol/datatemplate.h"
#include "Protocol/detection/detectionwriter.h"
#include "Protocol/fight/fightcalibratedata.h"
#include "Protocol/fight/fightcalibratewriter.h"
#include "Protocol/lanes/lanesdata.h"
#include "Protocol/lanes/laneswriter.h"
#include "Protocol/missingplace.h"
#include "Protocol/rules/ruleswriter.h"
#include "Protocol/writecontext.h"

namespace
{

// Scenes in the order in which they are written; a later one wins where two share a place.
constexpr SceneType kOrder[] = {
    SceneType::Global, SceneType::CalibrateArea, SceneType::FightCalibrate,
    SceneType::Rules,  SceneType::Lanes,         SceneType::Detection,
};

bool writeScene(const RuleData& data, const WriteContext& context, kql::Json::Value& document,
                MissingPlace& missing)
{
    switch (data.getSceneType()) {
    case SceneType::CalibrateArea:
        return CalibrateAreaWriter::writeCalibrateAreaData(
            static_cast<const CalibrateAreaData&>(data), context, document);
    case SceneType::FightCalibrate:
        return FightCalibrateWriter::writeFightCalibrate(
            static_cast<const FightCalibrateData&>(data), document);
    case SceneType::Lanes:
        return LanesWriter::writeLanes(static_cast<const LanesData&>(data), context, document,
                                       missing);
    case SceneType::Rules:
        return RulesWriter::writeRule(data, context, document);
    case SceneType::Global:
        return RulesWriter::writeGlobal(data, context, document);
    case SceneType::Detection:
        return DetectionWriter::writeDetection(data, context, document);
    case SceneType::None:
        return true;
    }
    return true;
}

} // namespace

ConfigWriter::ConfigWriter(const std::vector<std::unique_ptr<RuleData>>& scenes,
                           const kql::Json::Value& configuration)
    : m_scenes(scenes), m_configuration(configuration)
{
}

void ConfigWriter::setAlgorithmInfo(int id, const QString& name)
{
    m_algorithmId = id;
    m_algorithmName = name;
}

std::optional<MissingPlace> ConfigWriter::write(kql::Json::Value& config) const
{
    const WriteContext context{m_configuration, m_algorithmId, m_algorithmName};
    for (const SceneType type : kOrder) {
        for (const auto& scene : m_scenes) {
            if (scene->getSceneType() != type)
                continue;
            const DataTemplate& section = *scene->getTemplate();
            MissingPlace missing{section.parent(), section.name()};
            if (!writeScene(*scene, context, config, missing))
                return missing;
        }
    }
    return std::nullopt;
}
