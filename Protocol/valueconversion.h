#pragma once

#include "host/json/fwd.h"

#include <QVariant>
#include <optional>

class RuleProtocolItem;

/**
 * Values of control items between JSON and variants, by the item's value type and its index in
 * an array. Reading and writing mirror each other.
 */
namespace ValueConversion
{

/// How many characters the styled text has that @p item reads of @p found; 0 for other types.
qint64 styledLength(const kql::Json::Value& found, const RuleProtocolItem& item);

/// What @p item reads of @p found: with an index its element, null where the list ends before it;
/// a value that is no list stands for itself.
const kql::Json::Value& element(const kql::Json::Value& found, const RuleProtocolItem& item);
/// As above, for writing; null where the list ends before it.
kql::Json::Value* element(kql::Json::Value& found, const RuleProtocolItem& item);

/// Whether the value that parseJsonToValue() makes of @p found says all that is there: a number or
/// a switch as text does, and a whole number with a fraction of 0. What says less is to be written
/// back as it was read.
bool isReadWhole(const kql::Json::Value& found, const RuleProtocolItem& item);

/// The text that @p value is or, for a number or a switch, is written as; else nothing.
std::optional<QString> toText(const kql::Json::Value& value);

/// @p found as a variant; invalid for null, for what does not fit the type and where the type
/// holds no value.
QVariant parseJsonToValue(const kql::Json::Value& found, const RuleProtocolItem& item);

/**
 * Puts @p value into @p found. An invalid value changes nothing but a text item's array, which
 * is emptied; a single number or switch never replaces an array. An index behind the end of an
 * array changes nothing.
 *
 * @p asRead is what the value was read from, null for a new one: a whole number that a device
 * wrote without a fraction is written back without one.
 */
void toJson(const QVariant& value, const RuleProtocolItem& item, kql::Json::Value& found,
            const kql::Json::Value* asRead = nullptr);

/// @p number as JSON; a whole one without a fraction where @p like has none either.
kql::Json::Value numberLike(double number, const kql::Json::Value& like);

} // namespace ValueConversion
