#pragma once

#include "fuzz/pairs/attribute.h"

class PairMaker;

/// What a made pair is to be saved as when nobody edits anything, worked out apart from the
/// module's own reading and writing.
namespace ExpectedDocument
{

kql::Json::Value of(const PairMaker& pair);

/// Whether both say the same; numbers count by value.
bool isSame(const kql::Json::Value& one, const kql::Json::Value& other);

} // namespace ExpectedDocument
