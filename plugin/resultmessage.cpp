#include "plugin/resultmessage.h"

#include "host/api/cuipluginmessage.h"
#include "host/api/kqsingleton.h"
#include "host/api/pluginmessages.h"
#include "host/api/pluginmsg_param.h"
#include "host/json/value.h"
#include "plugin/rulesparameters.h"

namespace IntelligentRulesUI
{

namespace
{

constexpr int kSaved = 0;
constexpr int kExited = -1;

kql::Json::Value resultObject(const RulesParameters& load, int result)
{
    kql::Json::Value object(kql::Json::ValueType::Object);
    object["result"] = result;
    object["algorithmId"] = load.algorithmId;
    object["channalId"] = load.channelId;
    object["channelId"] = load.channelId;
    object["algorithmType"] = load.algorithmType;
    object["algorithmCode"] = load.algorithmCode;
    return object;
}

bool post(const QString& widgetId, const kql::Json::Value& object)
{
    const QString text = object.toStyledText();
    if (text.isEmpty())
        return false;
    KQGUI::KQSingleton<UICommonMdl::CUIPluginMessage>::Instance().PostEvent(
        {PluginMsgRulesResult, widgetId, text});
    return true;
}

} // namespace

bool postSaved(const QString& widgetId, const RulesParameters& parameters, kql::Json::Value config)
{
    kql::Json::Value object = resultObject(parameters, kSaved);
    object["channelAbilityPO"] = std::move(config);
    return post(widgetId, object);
}

void postExited(const QString& widgetId, const RulesParameters& parameters)
{
    post(widgetId, resultObject(parameters, kExited));
}

} // namespace IntelligentRulesUI
