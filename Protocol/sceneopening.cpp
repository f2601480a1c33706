#include "Protocol/sceneopening.h"

#include "Protocol/linedirections.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"

#include <QCoreApplication>

void SceneOpening::complete(RuleData& data)
{
    if (data.getSceneType() == SceneType::Detection)
        data.setRuleFucTitle(QCoreApplication::translate("DetectionScene", "Detection area"));
    if (data.getSceneType() == SceneType::Global && data.getDataCount() == 0) {
        if (auto entry = data.newDataInfo())
            data.addDataInfo(std::move(entry));
    }
}

void SceneOpening::turnLines(const RuleData& data)
{
    for (const auto& entry : data.getAllData())
        LineDirections::apply(data, *entry);
}

int SceneOpening::showFirst(RuleData& data)
{
    const auto& entries = data.getAllData();
    const int first = entries.empty() ? 0 : entries.front()->id();
    data.setSelectedDataId(first);
    return first;
}
