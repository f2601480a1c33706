#pragma once

#include <QPoint>
#include <QVector>
#include <vector>

class DrawScene;
class RuleProtocolItem;

/// A figure of a copied entry that is to be put on a canvas; its points are in 0..8192.
struct CopiedFigure {
    const RuleProtocolItem* item; ///< not owned
    QVector<QPoint> points;
    QVector<QPoint> directions = {}; ///< of a parallelogram
    int place = -1;                  ///< in the list that the original was read from
};

/// How far @p figures have to go right and down, all of them together, until none of them is equal
/// to a figure of its kind on @p canvas; no farther than the picture goes.
QPoint wayToFreePlace(const std::vector<CopiedFigure>& figures, const DrawScene& canvas);
