#pragma once

#include <QPoint>
#include <QSize>
#include <QVector>
#include <memory>

namespace Gdiplus
{
class Graphics;
class GraphicsPath;
} // namespace Gdiplus

/// Where on the canvas no point may be set. All coordinates are canvas pixels.
class ForbidenArea
{
public:
    /// What lies inside of at least one outline, on a canvas of @p canvasSize pixels.
    static std::unique_ptr<ForbidenArea> inside(const QSize& canvasSize);
    /// What lies inside of an odd number of outlines.
    static std::unique_ptr<ForbidenArea> between(const QSize& canvasSize);
    /// What a figure forbids for itself; null for null.
    static std::unique_ptr<ForbidenArea> of(std::unique_ptr<Gdiplus::GraphicsPath> path);

    ~ForbidenArea();
    ForbidenArea(const ForbidenArea&) = delete;
    ForbidenArea& operator=(const ForbidenArea&) = delete;

    void addCanvas();
    /// Nothing for fewer than two points.
    void addOutline(const QVector<QPoint>& points);

    bool contains(const QPoint& point) const;
    /// Shades the area: with rough edges when these are long together, and not at all when they are
    /// so long that it would take seconds. Leaves the painting smooth.
    void paint(Gdiplus::Graphics& graphics) const;

private:
    ForbidenArea(std::unique_ptr<Gdiplus::GraphicsPath> path, const QSize& canvasSize);

    std::unique_ptr<Gdiplus::GraphicsPath> m_path;
    QSize m_canvasSize;
    qint64 m_edgeLength = 0; ///< of all outlines, in pixels
};
