#include "scene/globalscene.h"

#include "Protocol/unseenrows.h"

QString GlobalScene::heading() const
{
    return tr("Global configuration");
}

bool GlobalScene::wantsRow(const RuleProtocolItem& item) const
{
    return UnseenRows::isShown(*ruleData(), item);
}
