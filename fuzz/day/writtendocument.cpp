#include "fuzz/day/writtendocument.h"

#include "fuzz/fault.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/sceneprotocol.h"
#include "Protocol/sceneprotocols.h"
#include "host/json/reader.h"
#include "scene/basetabelscene.h"
#include "workbench/workbenchwindow.h"

using kql::Json::Value;

namespace
{

// Of scenes that share a place the later one stays.
constexpr SceneType kOrder[] = {SceneType::Global,         SceneType::CalibrateArea,
                                SceneType::FightCalibrate, SceneType::Rules,
                                SceneType::Lanes,          SceneType::Detection};

} // namespace

void WrittenDocument::load(const WorkbenchWindow& window)
{
    QString error;
    const QString block = window.options().parameterBlock(error);
    Fuzz::require(kql::Json::Reader().parse(block, m_block), error.toStdString());
}

std::string WrittenDocument::text(const WorkbenchWindow& window) const
{
    Value document = m_block["videoConfigRuleProperty"]["configTemplate"];
    bool isLoaded = false;
    const auto panels = window.rulesWindow()->findChildren<BaseTabelScene*>();
    for (const SceneType type : kOrder) {
        for (const BaseTabelScene* panel : panels) {
            const RuleData* const data = panel->ruleData();
            if (!data || data->getSceneType() != type)
                continue;
            isLoaded = true;
            write(*data, document);
        }
    }
    return isLoaded ? document.toCompactText().toStdString() : std::string();
}

void WrittenDocument::write(const RuleData& data, Value& document) const
{
    const WriteContext context{m_block["channelAbilityPO"], m_block["algorithmType"].asInt(),
                               m_block["algorithmCode"].asString()};
    for (const TemplateSection& section : data.getTemplate()->sections())
        Fuzz::require(sceneProtocol(data.getSceneType()).write(data, section, context, document),
                      "what is shown cannot be written");
}
