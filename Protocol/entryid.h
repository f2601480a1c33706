#pragma once

/// The ids of entries: counted from 1, and never given out twice in a process,
/// whatever the thread.
namespace EntryId
{

/// Gives out the next one.
int next();
/// The id that comes behind @p last.
int after(int last);

} // namespace EntryId
