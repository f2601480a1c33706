#pragma once

#include <QPolygon>
#include <QSize>
#include <QString>
#include <vector>

class DrawScene;
class QGraphicsPolygonItem;
class QGraphicsScene;

/// Labelled polygons all over the picture, the same ones for the module and for its peers.
namespace FigureScene
{

constexpr QSize kPicture(1920, 1080);

struct Shape {
    QPolygon outline; ///< canvas pixels
    QString label;
};

std::vector<Shape> figures(int count);

/// Adds them to @p scene, finished, but for the one at @p unfinished, which is selected.
void fill(DrawScene& scene, const std::vector<Shape>& figures, int unfinished = -1);
/// Adds them to @p scene, as lines of the same look; returns the one in the middle.
QGraphicsPolygonItem* fill(QGraphicsScene& scene, const std::vector<Shape>& figures);

} // namespace FigureScene
