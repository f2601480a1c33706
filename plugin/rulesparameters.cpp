#include "plugin/rulesparameters.h"

#include "host/json/reader.h"
#include "host/json/value.h"

#include <algorithm>
#include <array>
#include <utility>

namespace IntelligentRulesUI
{

using kql::Json::Value;

namespace
{

// "channalId" is how older hosts spell it; it wins where both are given.
constexpr char kChannelKey[] = "channalId";
constexpr char kChannelKeyAlt[] = "channelId";

// Characters of styled text: what is shorter is an empty object, or says as little.
constexpr int kShortestConfig = 10;

bool hasRequiredMembers(const Value& block)
{
    constexpr std::array<const char*, 4> kRequired = {
        "algorithmId", "channelName", "videoConfigRuleProperty", "channelAbilityPO"};
    const bool hasChannel = block.isMember(kChannelKey) || block.isMember(kChannelKeyAlt);
    return hasChannel && std::all_of(kRequired.begin(), kRequired.end(),
                                     [&block](const char* key) { return block.isMember(key); });
}

/// Whether the styled text of @p value is at least that long. A member, or a second element, makes
/// it so, so that only short ones are written to know it.
bool isLongConfig(const Value& value)
{
    if (value.isObject() || value.size() > 1)
        return !value.empty();
    return (value.size() == 1 && isLongConfig(value[0])) || value.styledLength() >= kShortestConfig;
}

PreviewLogical::RtspVideoParam streamOf(const Value& block, const QString& channelId, int session)
{
    PreviewLogical::RtspVideoParam stream;
    stream.channelId = channelId;
    stream.decodeType = block["decodeType"].asInt();
    stream.playType = block["iPlayType"].asInt();
    stream.serverType = block["serverType"].asInt();
    stream.sessionId = session;
    stream.streamMode = block["iStreamMode"].asInt();
    stream.delayTime = block["uiDelayTime"].asInt();
    stream.rtspUrl = block["rtspUrl"].asString();
    return stream;
}

} // namespace

std::optional<RulesParameters> RulesParameters::parse(const QString& json, int session)
{
    Value document;
    if (!kql::Json::Reader().parse(json, document, true) || !hasRequiredMembers(document))
        return std::nullopt;
    const Value& block = document;
    RulesParameters result;
    result.algorithmId = block["algorithmId"].asString();
    result.algorithmType = block["algorithmType"].asInt();
    result.algorithmCode = block["algorithmCode"].asString();
    result.channelId = block[block.isMember(kChannelKey) ? kChannelKey : kChannelKeyAlt].asString();
    const Value* serialNumber = block.find("channelSn");
    result.shownChannel = serialNumber ? serialNumber->asString() : result.channelId;
    result.channelName = block["channelName"].asString();
    result.templateDocument = std::move(document["videoConfigRuleProperty"]);
    result.configuration = std::move(document["channelAbilityPO"]);
    result.hasConfig = isLongConfig(result.configuration);
    result.selectionMode = block["selectionMode"].asBool();
    // The mere presence of "editable" locks the window, unless rules are to be selected in it.
    result.editable = !block.isMember("editable") || result.selectionMode;
    result.stream = streamOf(block, result.channelId, session);
    return result;
}

} // namespace IntelligentRulesUI
