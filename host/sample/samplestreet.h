#pragma once

class QPainter;

namespace UICommonMdl
{

/// Paints what stands still in the sample camera's picture: sky, houses, trees, the road.
void paintStreet(QPainter& painter);

} // namespace UICommonMdl
