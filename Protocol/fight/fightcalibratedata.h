#pragma once

#include "Protocol/ruledata.h"

/// The fight-calibrate scene's data; makes its own template.
class FightCalibrateData : public RuleData
{
public:
    FightCalibrateData();
};
