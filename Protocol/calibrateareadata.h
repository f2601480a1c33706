#pragma once

#include "Protocol/ruledata.h"

class CalibrateAreaTemplate;

/// The calibrate-area scene's data; makes its own template.
class CalibrateAreaData : public RuleData
{
public:
    CalibrateAreaData();
    /// Null when a template of another kind was put in its place.
    CalibrateAreaTemplate* calibrateTemplate() const;

protected:
    void fillNewEntry(RuleDataInfo& entry) const override;
};
