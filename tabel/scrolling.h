#pragma once

class QWidget;

/// Moves what the operator is to see into view.
namespace Scrolling
{

/// Scrolls the views around @p widget, as little as it takes, until all of it is seen; of one that
/// is taller than its view, the top.
void showWhole(const QWidget& widget);

} // namespace Scrolling
