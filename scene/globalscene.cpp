#include "scene/globalscene.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"

void GlobalScene::setRuleData(RuleData* newData)
{
    if (newData && newData->getDataCount() == 0) {
        if (auto entry = newData->newDataInfo())
            newData->addDataInfo(std::move(entry));
    }
    BaseTabelScene::setRuleData(newData);
}

QString GlobalScene::heading() const
{
    return tr("Global configuration");
}

bool GlobalScene::wantsRow(const RuleProtocolItem& item) const
{
    return item.isEnabled();
}
