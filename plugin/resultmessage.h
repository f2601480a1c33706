#pragma once

#include "host/json/fwd.h"

#include <QString>

namespace IntelligentRulesUI
{

/// What a result says of the load that it belongs to.
struct ResultContext {
    QString widgetId;
    QString algorithmId;
    int algorithmType = 0;
    QString algorithmCode;
    QString channelId;
};

/// Posts to the host that the operator saved @p config; false, with nothing posted, when its text
/// is too long.
bool postSaved(const ResultContext& context, kql::Json::Value config);

/// Posts to the host that the operator left without saving.
void postExited(const ResultContext& context);

} // namespace IntelligentRulesUI
