#pragma once

class QPainter;

namespace UICommonMdl
{

/// Paints the trees and hedges along the sample camera's street, the farthest first.
void paintTrees(QPainter& painter);

} // namespace UICommonMdl
