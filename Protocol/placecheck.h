#pragma once

#include "host/json/fwd.h"

class RuleData;

/// Finds the attributes of a scene that are never written, because the skeleton has no place for
/// them that fits.
namespace PlaceCheck
{

/// Tells them to @p data, and whether there is a place for one entry alone. @p skeleton is the
/// document that its entries are written into.
void tell(RuleData& data, const kql::Json::Value& skeleton);

} // namespace PlaceCheck
