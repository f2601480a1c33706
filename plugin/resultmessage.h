#pragma once

#include "host/json/fwd.h"

class QString;

namespace IntelligentRulesUI
{

struct RulesParameters;

/// Posts to the host that the operator saved @p config in the window @p widgetId, for the load of
/// @p parameters; false, with nothing posted, when its text is too long.
bool postSaved(const QString& widgetId, const RulesParameters& parameters, kql::Json::Value config);

/// Posts to the host that the operator left without saving.
void postExited(const QString& widgetId, const RulesParameters& parameters);

} // namespace IntelligentRulesUI
