#pragma once

#include <functional>

/// Waiting with the event loop running.
namespace EventWait
{

/// Waits until @p condition holds, for @p milliseconds at most; returns whether it held.
bool until(int milliseconds, const std::function<bool()>& condition);

} // namespace EventWait
