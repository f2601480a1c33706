#pragma once

#include <QPoint>
#include <QPolygonF>
#include <QSize>
#include <QVector>

namespace Gdiplus
{
class GraphicsPath;
}

/// Adds the closed polygon of @p points to @p path; nothing for fewer than two points.
void addClosedOutline(Gdiplus::GraphicsPath& path, const QPolygonF& points);
void addClosedOutline(Gdiplus::GraphicsPath& path, const QVector<QPoint>& points);

/// Adds the outline of the whole canvas to @p path; nothing when it has no area.
void addCanvasOutline(Gdiplus::GraphicsPath& path, const QSize& canvasSize);
