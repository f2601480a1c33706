#pragma once

#include <QColor>
#include <QPen>
#include <QPolygon>
#include <QSize>
#include <QString>
#include <QVector>
#include <vector>

class DrawScene;
class QGraphicsPolygonItem;
class QGraphicsScene;

/// Labelled polygons all over the picture, the same ones for the module and for its peers.
namespace FigureScene
{

constexpr QSize kPicture(1920, 1080);
const QColor kBlue(0, 125, 255);

struct Shape {
    QPolygon outline; ///< canvas pixels
    QString label;
};

std::vector<Shape> figures(int count);

/// Adds them to @p scene, finished, but for the one at @p unfinished, which is selected.
void fill(DrawScene& scene, const std::vector<Shape>& figures, int unfinished = -1);
/// What lies beneath all lines, and where the same texts lie beneath a text.
QPen casing();
QVector<QPoint> around();
/// Adds them to @p scene, as lines of the same look; returns the one in the middle.
QGraphicsPolygonItem* fill(QGraphicsScene& scene, const std::vector<Shape>& figures);
/// Adds what lies beneath them, to be called before; returns that of the one in the middle.
QGraphicsPolygonItem* fillBeneath(QGraphicsScene& scene, const std::vector<Shape>& figures);

} // namespace FigureScene
