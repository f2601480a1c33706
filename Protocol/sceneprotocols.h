#pragma once

#include "Protocol/ruletypes.h"

class SceneProtocol;

/// How scenes of that type are read and written; those of no type as rules without names. Lives as
/// long as the process.
const SceneProtocol& sceneProtocol(SceneType type);
