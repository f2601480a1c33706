#pragma once

#include "host/json/fwd.h"

/// The client's clipboard, as far as it holds an entry. Under a type of its own: an entry is never
/// pasted as text, nor text as an entry.
namespace IntelligentRulesUI::EntryClipboard
{

/// Puts @p clip in the place of what the clipboard holds; false, with the clipboard left as it is,
/// for one that is too long to be taken out again.
bool put(const kql::Json::Value& clip);

/// Whether it holds something that is said to be an entry.
bool hasEntry();
/// What it holds; null for nothing, and for what no document may be either.
kql::Json::Value entry();

} // namespace IntelligentRulesUI::EntryClipboard
