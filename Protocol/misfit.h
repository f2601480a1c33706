#pragma once

#include <QString>

class RuleData;
class RuleDataInfo;

/// What a configuration has where an attribute's value belongs and no row can show. It is written
/// back as it was read until the operator edits the row, if it has a place.
namespace Misfit
{

/// Tells @p data all those of its entries.
void tell(RuleData& data);
/// As above, of one entry.
void tell(RuleData& data, const RuleDataInfo& entry);

/// What the row of @p key says of it, for an entry of @p data; empty when there is none.
QString explained(const RuleData& data, const RuleDataInfo& entry, const QString& key);
/// As above, of an entry's name.
QString explainedName(const RuleDataInfo& entry);

} // namespace Misfit
