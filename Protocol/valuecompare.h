#pragma once

#include "Protocol/ruletypes.h"

class QVariant;

/// Compares values of attributes, whatever their types.
namespace ValueCompare
{

/// Whether `first operatorType second` holds. Numbers, switches and texts that are numbers
/// compare as numbers, other texts as texts. Lists and pairs have no order: they are only told
/// equal or not, and every other comparison of them holds.
bool holds(const QVariant& first, CheckRuleOperatorType operatorType, const QVariant& second);

} // namespace ValueCompare
