#pragma once

class QVariant;
class RuleProtocolItem;

/// Whether a row could have been given a value.
namespace ValueFit
{

/// Whether @p value is within the range of @p item, or among its choices. True where the item has
/// neither.
bool isPossible(const RuleProtocolItem& item, const QVariant& value);

} // namespace ValueFit
