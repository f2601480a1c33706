#pragma once

#include <string>

class RuleData;
class RuleParser;

/// What scenes hold, as text: two of them are alike when their texts are.
namespace SceneText
{

/// A line for each entry: name, enabled, values by item; and one for each of its figures. Ids,
/// which differ from one reading to the next, are left out.
std::string of(const RuleData& scene);
std::string of(const RuleParser& parser);

} // namespace SceneText
