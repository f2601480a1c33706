#pragma once

#include "Protocol/countrange.h"
#include "host/json/fwd.h"

#include <QStringList>
#include <memory>
#include <optional>

class RuleProtocolItem;

/// Reads single attributes of a template document.
namespace TemplateItemReader
{

/// What a control says itself: key, place of the value, conditions.
std::unique_ptr<RuleProtocolItem> parseControl(const kql::Json::Value& control);

/// Of how many of @p controls a dependency is read; see parseDependencies().
int countDependencies(const kql::Json::Value& controls);

/// The keys that each of @p controls with a list of dependencies depends on.
QStringList parseDependencies(const kql::Json::Value& controls);

/// What the details say: caption, facade, and what belongs to that facade.
void parseRuleProtocolItem(RuleProtocolItem& item, const kql::Json::Value& details);

/// A pair of counts; nothing when @p value is not an array of two.
std::optional<CountRange> parseCountRange(const kql::Json::Value& value);

} // namespace TemplateItemReader
