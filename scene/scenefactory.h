#pragma once

#include "Protocol/ruletypes.h"

class BaseTabelScene;
class QWidget;

/// The panel for scenes of that type, a child of @p parent; null for types without a panel.
BaseTabelScene* createScene(SceneType type, QWidget* parent);
