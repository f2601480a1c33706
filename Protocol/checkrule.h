#pragma once

#include "Protocol/ruletypes.h"

#include <QString>

/// A cross-field check between two attributes of one entry.
struct CheckRule {
    QString firstKey;
    QString secondKey;
    CheckRuleOperatorType operatorType = CheckRuleOperatorType::None;
};
