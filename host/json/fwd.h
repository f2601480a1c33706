#pragma once

// For headers that speak of documents and do not look into them: value.h brings RapidJSON along,
// which only those should read who need it.

namespace kql
{
namespace Json
{

/// Makes a Value of text: host/json/reader.h.
class Reader;
/// A document or a part of one: host/json/value.h.
class Value;

} // namespace Json
} // namespace kql
