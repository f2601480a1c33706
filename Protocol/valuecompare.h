#pragma once

#include "Protocol/ruletypes.h"

#include <QString>

class QVariant;

/// Compares values of attributes, whatever their types.
namespace ValueCompare
{

/// Whether `first operatorType second` holds. Numbers, switches and texts that are numbers
/// compare as numbers, other texts as texts. Lists and pairs have no order: they are only told
/// equal or not, and every other comparison of them holds.
bool holds(const QVariant& first, CheckRuleOperatorType operatorType, const QVariant& second);

} // namespace ValueCompare

/// Texts that stand for values, in the form in which they are compared.
namespace ComparableText
{

/// Whether one value of that type may be spelled in several ways.
bool hasSpellings(ValueType type);

/// @p text in the one form of all spellings of its value: JSON with its members sorted and its
/// numbers by value. Other texts, and those of types with one spelling, stay as they are.
QString of(const QString& text, ValueType type);

} // namespace ComparableText
