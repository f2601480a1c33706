#pragma once

class QString;
class WorkbenchWindow;

/// Compares what a window sent to be saved with what it shows.
namespace SavedCheck
{

/// Reads @p result, the second parameter of a result message, with the loaded template; throws
/// Fault unless it has the same entries with the same values and figures as the window's sections.
void require(const WorkbenchWindow& window, const QString& result);

} // namespace SavedCheck
