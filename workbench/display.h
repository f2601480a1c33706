#pragma once

/// Where windows can be shown.
namespace WorkbenchDisplay
{

/// Whether there is a display, or the environment names a Qt platform that needs none.
bool isThere();

/// Whether anybody can see the application's windows: not where they are in memory only.
bool isSeen();

/// Makes Qt show windows in memory only; to be called before the application is made.
/// Returns whether that could be set up.
bool useOffscreen();

/// Has a window without a display look as on a plain desktop, with 96 dots an inch unless
/// QT_FONT_DPI says otherwise; to be called before the application is made. Qt's would have 100,
/// and so be drawn at 104 %. Without effect on a display.
void setPlainDensity();
/// The same for the font, of 9 points, once the application is made.
void setPlainFont();

} // namespace WorkbenchDisplay
