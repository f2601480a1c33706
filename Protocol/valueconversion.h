#pragma once

#include <QVariant>

class RuleProtocolItem;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/**
 * Values of control items between JSON and variants, by the item's value type and its index in
 * an array. Reading and writing mirror each other.
 */
namespace ValueConversion
{

/// How many characters the styled text has that @p item reads of @p found; 0 for other types.
qint64 styledLength(const kql::Json::Value& found, const RuleProtocolItem& item);

/// @p found as a variant; invalid for null and where the type holds no value.
QVariant parseJsonToValue(const kql::Json::Value& found, const RuleProtocolItem& item);

/**
 * Puts @p value into @p found. An invalid value changes nothing but a text item's array, which
 * is emptied; a single number or switch never replaces an array.
 *
 * @p asRead is what the value was read from, null for a new one: a whole number that a device
 * wrote without a fraction is written back without one.
 */
void toJson(const QVariant& value, const RuleProtocolItem& item, kql::Json::Value& found,
            const kql::Json::Value* asRead = nullptr);

/// @p number as JSON; a whole one without a fraction where @p like has none either.
kql::Json::Value numberLike(double number, const kql::Json::Value& like);

} // namespace ValueConversion
