#pragma once

#include <QString>
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

/// The text of the first failure, translated: the number of entries, then entry by entry its
/// items in template order and its cross-field checks. Nothing when the scene may be saved.
/// @p entryTitle is the word for one entry.
std::optional<QString> firstFailure(const DataTemplate& dataTemplate, const DrawScene& scene,
                                    const Entries& entries, const QString& entryTitle);

} // namespace RuleCheck
