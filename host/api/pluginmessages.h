#pragma once

/// Ids of the messages between host and module.
namespace IntelligentRulesUI
{

enum PluginMsg : int {
    PluginMsgCloseRules = 0,
    PluginMsgOpenRules = 160,
    PluginMsgQueryUnfinishedDraw = 222,
    PluginMsgUnfinishedDrawReply = 223,
    PluginMsgOpenRulesAlt = 566,
    PluginMsgRulesResult = 996,
};

} // namespace IntelligentRulesUI
