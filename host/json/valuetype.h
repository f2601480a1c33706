#pragma once

namespace kql
{
namespace Json
{

/// What a Value holds. Whole numbers and numbers with a fraction are kinds of their own.
enum class ValueType { Null, Int, Real, String, Bool, Array, Object };

} // namespace Json
} // namespace kql
