#include "draw/forbidenarea.h"

#include "host/api/limits.h"
#include "host/gdiplus.h"

#include <QPolygon>
#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

namespace
{

const Gdiplus::ARGB kShade = 0x64000000;

} // namespace

ForbidenArea::ForbidenArea(std::unique_ptr<Gdiplus::GraphicsPath> path, const QSize& canvasSize)
    : m_path(std::move(path)), m_canvasSize(canvasSize)
{
}

ForbidenArea::~ForbidenArea() = default;

void ForbidenArea::addCanvas()
{
    addCanvas(*m_path, m_canvasSize);
}

void ForbidenArea::addOutline(const QVector<QPoint>& outline)
{
    addOutline(*m_path, QPolygon(outline));
    const qint64 longest = qint64{m_canvasSize.width()} + m_canvasSize.height();
    for (int i = 0; i + 1 < outline.size(); ++i) {
        const QPoint& from = outline[i];
        const QPoint& to = outline[i + 1];
        m_edgeLength += std::min(longest, std::abs(qint64{to.x()} - from.x()) +
                                              std::abs(qint64{to.y()} - from.y()));
    }
}

void ForbidenArea::addCanvas(Gdiplus::GraphicsPath& path, const QSize& canvasSize)
{
    path.AddRectangle(Gdiplus::RectF(0, 0, float(canvasSize.width()), float(canvasSize.height())));
}

void ForbidenArea::addOutline(Gdiplus::GraphicsPath& path, const QPolygonF& corners)
{
    if (corners.size() < 2)
        return;
    std::vector<Gdiplus::PointF> outline;
    outline.reserve(std::size_t(corners.size()) + 1);
    for (const QPointF& corner : corners)
        outline.emplace_back(float(corner.x()), float(corner.y()));
    if (!corners.isClosed())
        outline.push_back(outline.front());
    path.AddPolygon(outline.data(), int(outline.size()));
}

bool ForbidenArea::contains(const QPoint& point) const
{
    return m_path->IsVisible(std::min(point.x(), std::max(0, m_canvasSize.width() - 1)),
                             std::min(point.y(), std::max(0, m_canvasSize.height() - 1)));
}

void ForbidenArea::paint(Gdiplus::Graphics& graphics) const
{
    if (m_edgeLength > Limits::kShadedEdges)
        return;
    const Gdiplus::SolidBrush shade{Gdiplus::Color(kShade)};
    if (m_edgeLength > Limits::kSmoothEdges)
        graphics.SetSmoothingMode(Gdiplus::SmoothingModeNone);
    graphics.FillPath(&shade, m_path.get());
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
}
