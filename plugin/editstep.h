#pragma once

#include "Protocol/scenechange.h"
#include "Protocol/scenestate.h"

#include <QString>

namespace IntelligentRulesUI
{

/// One step of a history: a scene before and after it.
struct EditStep {
    int scene = 0; ///< position among the panels
    SceneChange change;
    QString row;    ///< key of the row that was edited; empty for none
    QString series; ///< steps of one series may become one; empty for none
    QString title;  ///< as the operator reads it
    SceneState before;
    SceneState after;
};

} // namespace IntelligentRulesUI
