#pragma once

#include "Protocol/ruletypes.h"

#include <QString>

/// Texts that stand for values, in the form in which they are compared.
namespace ComparableText
{

/// Whether one value of that type may be spelled in several ways.
bool hasSpellings(ValueType type);

/// @p text in the one form of all spellings of its value: JSON with its members sorted and its
/// numbers by value. Other texts, and those of types with one spelling, stay as they are.
QString of(const QString& text, ValueType type);

} // namespace ComparableText
