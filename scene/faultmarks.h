#pragma once

class DataTemplate;
class QWidget;
struct CheckFault;
struct SceneWidgets;

/// Shows in a section's widgets where a save was refused.
namespace FaultMarks
{

/// Marks entry and figure of @p fault, and its row while the entry @p shownEntry, whose values the
/// rows show, is the one at fault. Without a fault nothing is marked.
void show(const SceneWidgets& widgets, const CheckFault* fault, int shownEntry);

/// The widget with which the operator can mend it; null when there is none that can be used now.
QWidget* placeOf(const CheckFault& fault, const SceneWidgets& widgets,
                 const DataTemplate& dataTemplate);

} // namespace FaultMarks
