#pragma once

#include "scene/basetabelscene.h"

/// The section of the areas that fights are calibrated in, with the rectangles inside them.
class FightCalibrateScene : public BaseTabelScene
{
    Q_OBJECT

public:
    explicit FightCalibrateScene(QWidget* parent = nullptr);
};
