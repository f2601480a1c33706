#include "plugin/resultmessage.h"

#include "host/api/cuipluginmessage.h"
#include "host/api/kqsingleton.h"
#include "host/api/pluginmessages.h"
#include "host/api/pluginmsg_param.h"
#include "host/json/value.h"

namespace IntelligentRulesUI
{

namespace
{

constexpr int kSaved = 0;
constexpr int kExited = -1;

kql::Json::Value resultObject(const ResultContext& context, int result)
{
    kql::Json::Value object(kql::Json::ValueType::Object);
    object["result"] = result;
    object["algorithmId"] = context.algorithmId;
    object["channalId"] = context.channelId;
    object["channelId"] = context.channelId;
    object["algorithmType"] = context.algorithmType;
    object["algorithmCode"] = context.algorithmCode;
    return object;
}

bool post(const ResultContext& context, const kql::Json::Value& object)
{
    const QString text = object.toStyledText();
    if (text.isEmpty())
        return false;
    KQGUI::KQSingleton<UICommonMdl::CUIPluginMessage>::Instance().PostEvent(
        {PluginMsgRulesResult, context.widgetId, text});
    return true;
}

} // namespace

bool postSaved(const ResultContext& context, kql::Json::Value config)
{
    kql::Json::Value object = resultObject(context, kSaved);
    object["channelAbilityPO"] = std::move(config);
    return post(context, object);
}

void postExited(const ResultContext& context)
{
    post(context, resultObject(context, kExited));
}

} // namespace IntelligentRulesUI
