#include "workbench/messagerecord.h"

#include "host/api/pluginmessages.h"
#include "host/json/reader.h"
#include "host/json/value.h"
#include "host/video/maskedaddress.h"

using kql::Json::Value;
using UICommonMdl::maskedAddress;

namespace
{

/// Whether anything had to be masked.
bool mask(Value& value)
{
    bool isMasked = false;
    if (value.isString()) {
        const QString text = value.asString();
        const QString shown = maskedAddress(text);
        isMasked = shown != text;
        if (isMasked)
            value = shown;
    }
    for (int i = 0; i < value.size(); ++i)
        isMasked = mask(value.isArray() ? value[i] : value.memberValue(i)) || isMasked;
    return isMasked;
}

} // namespace

bool MessageRecord::isResult() const
{
    return direction == Direction::FromModule && id == IntelligentRulesUI::PluginMsgRulesResult;
}

QString MessageRecord::masked(const QString& json)
{
    // An address in JSON may be hard to see: "rtsp:\/\/", "\u0040".
    Value document;
    if (!kql::Json::Reader().parse(json, document))
        return maskedAddress(json);
    return mask(document) ? document.toStyledText() : json;
}
