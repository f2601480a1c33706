#pragma once

#include "draw/figuretypes.h"

#include <QLine>
#include <QPoint>
#include <QPolygon>
#include <QPolygonF>
#include <QSize>
#include <QVector>
#include <optional>

/**
 * Geometry of figures as functions of values: no widget, no state.
 *
 * Two spaces occur: canvas pixels, and the normalized space of 0..8192 on both axes, in which
 * figures are stored and exchanged with devices.
 */
namespace DrawGeometry
{

/// Extent of the normalized space on each axis.
constexpr int kNormalizedExtent = 8192;

/// @p canvasPoint in normalized space, truncated toward zero; nothing while the canvas has no
/// area. Results beyond int are clamped.
std::optional<QPoint> toNormalized(const QPoint& canvasPoint, const QSize& canvasSize);

/// @p normalizedPoint in canvas pixels, truncated toward zero and clamped to int.
QPoint toCanvas(const QPoint& normalizedPoint, const QSize& canvasSize);

/// Where segments @p a and @p b cross, truncated to whole units. A vertical segment crosses
/// nothing: a known limit of the slope arithmetic that operators' figures rely on.
std::optional<QPoint> segmentsCross(const QLine& a, const QLine& b);

/// Whether segments @p a and @p b have a point in common; exact within the normalized space.
bool meet(const QLine& a, const QLine& b);

/// Whether two lines between consecutive @p points, the one that closes them included with
/// @p isClosed, meet elsewhere than in a corner that they share. Exact within the normalized space.
bool crossesItself(const QVector<QPoint>& points, bool isClosed);

/// How far @p point is from the nearest place of @p line.
double distance(const QLine& line, const QPoint& point);

/// Where the edge from the last of @p points to @p next crosses the edges before it.
QVector<QPoint> newEdgeCrossings(const QVector<QPoint>& points, const QPoint& next);

/// Where the closing edge from @p next to the first of @p points crosses the other edges.
QVector<QPoint> closingEdgeCrossings(const QVector<QPoint>& points, const QPoint& next);

/// Direction of @p line in radians, 0 to the right, growing clockwise on the screen.
double directionAngle(const QLine& line);

/// directionAngle() in degrees, with the module's own constant for pi.
double directionDegrees(const QLine& line);

/// Side of @p c seen along a→b: 1, -1, or 0 when the three are on one line.
int side(const QPoint& a, const QPoint& b, const QPoint& c);

/// Vertices three and four of the parallelogram over the edge @p p0 → @p p1 whose third vertex
/// is asked for at @p click; shifted so that the fourth stays on the canvas. Canvas pixels.
QVector<QPoint> completeParallelogram(const QPoint& p0, const QPoint& p1, const QPoint& click,
                                      const QSize& canvasSize);

/// The part of the canvas in which the fourth point of a vehicle lane would turn the second
/// line against the first: the side of the extended line p0→p1 on which p2 does not lie.
/// Empty when p2 lies on the line or the canvas has no area. Canvas pixels.
QPolygonF laneForbiddenPolygon(const QPoint& p0, const QPoint& p1, const QPoint& p2,
                               const QSize& canvasSize);

/// Halfway between @p a and @p b, truncated toward zero.
QPoint middle(const QPoint& a, const QPoint& b);

/// Midpoints of the edges p3–p0 and p1–p2 of @p parallelogram (four points), in that order;
/// empty for another number of points.
QVector<QPoint> directionMidpoints(const QVector<QPoint>& parallelogram);

/// Whether @p course runs along @p edge (left to right) or against it (right to left).
BaseDrawDirectionType directionAlong(const QLine& edge, const QLine& course);

/// @p points in the order that runs clockwise on the screen, so that polygons of a winding path
/// add up whichever way they were drawn.
QPolygon clockwise(const QVector<QPoint>& points);

} // namespace DrawGeometry
