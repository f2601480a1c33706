#pragma once

#include <QPoint>
#include <QPolygonF>
#include <QSize>
#include <QVector>
#include <memory>

namespace Gdiplus
{
class Graphics;
class GraphicsPath;
} // namespace Gdiplus

/**
 * Where on the canvas no point may be set: the inside of outlines that are added one by one. All
 * coordinates are canvas pixels.
 */
class ForbidenArea
{
public:
    /// What lies inside of @p path, by its fill mode, on a canvas of @p canvasSize pixels.
    ForbidenArea(std::unique_ptr<Gdiplus::GraphicsPath> path, const QSize& canvasSize);
    ~ForbidenArea();
    ForbidenArea(const ForbidenArea&) = delete;
    ForbidenArea& operator=(const ForbidenArea&) = delete;

    void addCanvas();
    /// @p outline is closed.
    void addOutline(const QVector<QPoint>& outline);

    /// Adds the outline of the whole canvas to @p path; nothing when it has no area.
    static void addCanvas(Gdiplus::GraphicsPath& path, const QSize& canvasSize);
    /// Adds the polygon @p corners to @p path, closed where it is open; nothing for fewer than two.
    static void addOutline(Gdiplus::GraphicsPath& path, const QPolygonF& corners);

    /// A point on the right or lower border is one in the last column or row.
    bool contains(const QPoint& point) const;
    /// Shades the area: with rough edges when these are long together, and not at all when they are
    /// so long that it would take seconds. Leaves the painting smooth.
    void paint(Gdiplus::Graphics& graphics) const;

private:
    std::unique_ptr<Gdiplus::GraphicsPath> m_path;
    QSize m_canvasSize;
    qint64 m_edgeLength = 0; ///< of all outlines, in pixels
};
