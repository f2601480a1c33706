#pragma once

#include <string>

class WorkbenchWindow;

/// What holds in a rules window whatever its operator did.
namespace DayOrder
{

/**
 * Throws Fault unless in every section the selected entry exists, the buttons are those of the
 * entries and figures, the rows show the selected entry's values, every figure belongs to an entry
 * and lies in 0..8192, and the canvas is as large as the picture.
 */
void require(const WorkbenchWindow& window);

/// All entries and figures of the window's sections, as text.
std::string contents(const WorkbenchWindow& window);

/// Their ids, which stay as long as nothing else is loaded, each with the place in the document
/// that it was read from.
std::string ids(const WorkbenchWindow& window);

/// What the sections show of them: which is selected or folded, the current entry and figure, and
/// all rows.
std::string shown(const WorkbenchWindow& window);

/// Whether a figure is in hand in a section.
bool isDrawing(const WorkbenchWindow& window);

/// Whether some row holds text that is not taken over yet.
bool isEditing(const WorkbenchWindow& window);

} // namespace DayOrder
