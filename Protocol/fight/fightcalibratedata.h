#pragma once

#include "Protocol/ruledata.h"

class FightCalibrateTemplate;

/// The fight-calibrate scene's data; makes its own template.
class FightCalibrateData : public RuleData
{
public:
    FightCalibrateData();
    /// Null when a template of another kind was put in its place.
    FightCalibrateTemplate* fightTemplate() const;
};
