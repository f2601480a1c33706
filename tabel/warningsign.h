#pragma once

#include <QIcon>

class QPainter;

/// The sign of what needs the operator's eye: a triangle with an exclamation mark, to be told from
/// its surroundings without colours, on bright and on dark ones.
namespace WarningSign
{

constexpr int kExtent = 12; ///< logical pixels, each way

/// Paints it with its top left corner at @p corner.
void paint(QPainter& painter, const QPoint& corner);
/// The same for buttons, enabled or not.
QIcon icon();

} // namespace WarningSign
