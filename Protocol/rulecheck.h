#pragma once

#include <QString>
#include <optional>

class RuleData;

/// What stands against saving a scene.
namespace RuleCheck
{

/// The text of the first failure, translated: the number of entries, then entry by entry its
/// items in template order and its cross-field checks. Nothing when the scene may be saved.
/// @p data has a template.
std::optional<QString> firstFailure(const RuleData& data);

} // namespace RuleCheck
