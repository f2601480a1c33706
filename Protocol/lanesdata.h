#pragma once

#include "Protocol/ruledata.h"

class LanesTemplate;

/// The lanes scene's data; makes its own template.
class LanesData : public RuleData
{
public:
    LanesData();
    /// Null when a template of another kind was put in its place.
    LanesTemplate* lanesTemplate() const;
};
