#pragma once

#include "Protocol/entrylist.h"

/// How the configuration of a detection scene is laid out.
namespace DetectionEntries
{

/// The entries of @p parent, which may be null: objects or lists of points; a bare list of
/// points is one entry.
EntryList::Entries of(const kql::Json::Value* parent);

/// Whether @p parent is one bare list of points in the place of a list of entries.
bool isBareList(const kql::Json::Value* parent);

} // namespace DetectionEntries
