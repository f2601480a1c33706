#pragma once

/// Where windows can be shown.
namespace WorkbenchDisplay
{

/// Whether there is a display, or the environment names a Qt platform that needs none.
bool isThere();

/// Makes Qt show windows in memory only; to be called before the application is made.
/// Returns whether that could be set up.
bool useOffscreen();

/// Has a window without a display, whose screen would have 100 dots an inch, be drawn at 100 %
/// unless QT_FONT_DPI says otherwise. Without effect on a display.
void setPlainDensity();

} // namespace WorkbenchDisplay
