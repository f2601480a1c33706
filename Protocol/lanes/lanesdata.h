#pragma once

#include "Protocol/ruledata.h"

/// The lanes scene's data; makes its own template.
class LanesData : public RuleData
{
public:
    LanesData();
};
