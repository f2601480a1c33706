#pragma once

#include "Protocol/checkfault.h"

#include <memory>
#include <optional>
#include <vector>

class DataTemplate;
class DrawScene;
class RuleDataInfo;

/// What stands against saving a scene.
namespace RuleCheck
{

using Entries = std::vector<std::unique_ptr<RuleDataInfo>>;

/// The first failure: the number of entries, then entry by entry its items in template order and
/// its cross-field checks. Nothing when the scene may be saved. @p entryTitle is the word for one
/// entry.
std::optional<CheckFault> firstFailure(const DataTemplate& dataTemplate, const DrawScene& scene,
                                       const Entries& entries, const QString& entryTitle);

/// What the check of @p fault alone finds now in @p entry, which it was found in; nothing once it
/// was corrected.
std::optional<CheckFault> failureOf(const CheckFault& fault, const DataTemplate& dataTemplate,
                                    const DrawScene& scene, const RuleDataInfo& entry);

} // namespace RuleCheck
