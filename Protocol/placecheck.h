#pragma once

#include "host/json/fwd.h"

class EntryWriter;
class JsonPath;
class RuleData;
class RuleProtocolItem;

/// Finds the attributes of a scene that are never written, because the skeleton has no place for
/// them that fits.
namespace PlaceCheck
{

/// What is wrong with an attribute's place.
struct PlaceFault {
    enum class Kind { None, Missing, OtherKind, NoType };

    Kind kind = Kind::None;
    const JsonPath* path = nullptr; ///< the one that is missing; lives as long as the item
};

/// Of @p item of @p data in @p prototype, what @p writer starts its entries as.
PlaceFault faultOf(const RuleData& data, const RuleProtocolItem& item, const EntryWriter& writer,
                   const kql::Json::Value& prototype);

/// Whether areas of @p data that are bare lists of points leave @p item out, a row or the figure
/// that is drawn: they are the points of the first figure.
bool isBesidePoints(const RuleData& data, const RuleProtocolItem& item);

/// Tells them to @p data, and whether there is a place for one entry alone. @p skeleton is the
/// document that its entries are written into, @p configuration the one that they were read from,
/// null for none.
void tell(RuleData& data, const kql::Json::Value& skeleton, const kql::Json::Value& configuration);

} // namespace PlaceCheck
