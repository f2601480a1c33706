#include "draw/forbidenarea.h"

#include "draw/closedoutline.h"
#include "host/api/limits.h"
#include "host/gdiplus.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace
{

const Gdiplus::ARGB kShade = 0x64000000;

} // namespace

ForbidenArea::ForbidenArea(std::unique_ptr<Gdiplus::GraphicsPath> path, const QSize& canvasSize)
    : m_path(std::move(path)), m_canvasSize(canvasSize)
{
}

ForbidenArea::~ForbidenArea() = default;

std::unique_ptr<ForbidenArea> ForbidenArea::inside(const QSize& canvasSize)
{
    auto path = std::make_unique<Gdiplus::GraphicsPath>(Gdiplus::FillModeWinding);
    return std::unique_ptr<ForbidenArea>(new ForbidenArea(std::move(path), canvasSize));
}

std::unique_ptr<ForbidenArea> ForbidenArea::between(const QSize& canvasSize)
{
    auto path = std::make_unique<Gdiplus::GraphicsPath>(Gdiplus::FillModeAlternate);
    return std::unique_ptr<ForbidenArea>(new ForbidenArea(std::move(path), canvasSize));
}

std::unique_ptr<ForbidenArea> ForbidenArea::of(std::unique_ptr<Gdiplus::GraphicsPath> path)
{
    if (!path)
        return nullptr;
    return std::unique_ptr<ForbidenArea>(new ForbidenArea(std::move(path), {}));
}

void ForbidenArea::addCanvas()
{
    addCanvasOutline(*m_path, m_canvasSize);
}

void ForbidenArea::addOutline(const QVector<QPoint>& points)
{
    addClosedOutline(*m_path, points);
    const qint64 longest = qint64{m_canvasSize.width()} + m_canvasSize.height();
    for (int i = 0; i < points.size(); ++i) {
        const QPoint& from = points[i];
        const QPoint& to = points[(i + 1) % points.size()];
        m_edgeLength += std::min(longest, std::abs(qint64{to.x()} - from.x()) +
                                              std::abs(qint64{to.y()} - from.y()));
    }
}

bool ForbidenArea::contains(const QPoint& point) const
{
    return m_path->IsVisible(point.x(), point.y());
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
