#pragma once

class QPainter;

namespace UICommonMdl
{

/// Paints the houses on both sides of the sample camera's street, the farthest first.
void paintHouses(QPainter& painter);

} // namespace UICommonMdl
