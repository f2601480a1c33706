#include "draw/figurelook.h"

#include "draw/basedraw.h"
#include "draw/canvasfigure.h"
#include "draw/drawitem.h"
#include "host/api/limits.h"
#include "host/gdiplus.h"

#include <algorithm>
#include <utility>

namespace
{

struct Band {
    int look;
    Gdiplus::ARGB color;
    float width;
};

/// From the bottom up. What is emphasised is to be told from any picture by a dark edge.
constexpr Band kBands[] = {
    {PaintedFigure::Emphasised, 0xFF101418, 15.0F},
    {PaintedFigure::Emphasised, 0xFFFFFFFF, 12.0F},
    {PaintedFigure::Faulty, 0xFFC4271B, 10.0F},
    {PaintedFigure::OfCurrentEntry, 0xFFFFD700, 8.0F},
};

const Gdiplus::ARGB kSignEdge = 0xFF3A2000;
const Gdiplus::ARGB kSignColor = 0xFFFFC82E;
constexpr int kSignHalf = 9; ///< of its width, in pixels
constexpr int kSignHeight = 17;

void fillTriangle(Gdiplus::Graphics& graphics, Gdiplus::ARGB color, const QPoint& top, int half,
                  int height)
{
    const Gdiplus::Point corners[] = {
        {top.x(), top.y()}, {top.x() + half, top.y() + height}, {top.x() - half, top.y() + height}};
    Gdiplus::GraphicsPath path;
    path.AddPolygon(corners, 3);
    const Gdiplus::SolidBrush brush{Gdiplus::Color(color)};
    graphics.FillPath(&brush, &path);
}

void setSmooth(Gdiplus::Graphics& graphics, const std::vector<PaintedFigure>& figures)
{
    qint64 points = 0;
    for (const PaintedFigure& painted : figures)
        points += painted.figure->pointCount();
    if (points > Limits::kSmoothPoints)
        graphics.SetSmoothingMode(Gdiplus::SmoothingModeNone);
}

} // namespace

quint64 PaintedFigure::revision(int parts) const
{
    const int seen = parts & Bands ? look : look & Faulty;
    return figure->revision() * kLooks + static_cast<quint64>(seen);
}

void PaintedFigure::paint(Gdiplus::Graphics& graphics, const std::vector<PaintedFigure>& figures,
                          int parts)
{
    setSmooth(graphics, figures);
    const auto each = [&](int part, const auto& paintOne) {
        if (parts & part)
            std::for_each(figures.begin(), figures.end(), paintOne);
    };
    each(Bands, [&](const PaintedFigure& painted) { painted.paintBands(graphics); });
    each(Casings, [&](const PaintedFigure& painted) { painted.figure->drawCasing(graphics); });
    each(Strokes, [&](const PaintedFigure& painted) { painted.figure->draw(&graphics); });
    each(Strokes, [&](const PaintedFigure& painted) { painted.paintSign(graphics); });
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
}

void PaintedFigure::paintBands(Gdiplus::Graphics& graphics) const
{
    for (const Band& band : kBands) {
        if (look & band.look)
            figure->drawBeneath(graphics, Gdiplus::Color(band.color), band.width);
    }
}

/// Colours alone do not tell what is at fault.
void PaintedFigure::paintSign(Gdiplus::Graphics& graphics) const
{
    if (!(look & Faulty))
        return;
    const CanvasFigure shown = figure->shownFigure();
    if (shown.points().isEmpty())
        return;
    // Above the first point, but on the canvas.
    const QPoint top(qBound(kSignHalf, shown.points().first().x(),
                            std::max(kSignHalf, shown.canvasSize().width() - kSignHalf)),
                     std::max(0, shown.points().first().y() - kSignHeight - 6));
    fillTriangle(graphics, kSignEdge, top, kSignHalf, kSignHeight);
    fillTriangle(graphics, kSignColor, top + QPoint(0, 3), kSignHalf - 3, kSignHeight - 5);
    const Gdiplus::SolidBrush ink{Gdiplus::Color(kSignEdge)};
    graphics.FillRectangle(&ink, top.x() - 1, top.y() + 6, 2, 5);
    graphics.FillRectangle(&ink, top.x() - 1, top.y() + 12, 2, 2);
}

bool FigureLooks::emphasise(int dataId, int itemId)
{
    const int entryBefore = std::exchange(m_emphasisedEntry, dataId);
    const int itemBefore = std::exchange(m_emphasisedItem, itemId);
    return entryBefore != dataId || itemBefore != itemId;
}

bool FigureLooks::setFaulty(int itemId)
{
    return std::exchange(m_faultyItem, itemId) != itemId;
}

PaintedFigure FigureLooks::of(const DrawItem& item, int currentDataId) const
{
    int look = PaintedFigure::Plain;
    if (currentDataId > 0 && item.dataId() == currentDataId && !item.isSelected())
        look |= PaintedFigure::OfCurrentEntry;
    const bool isPointed = m_emphasisedItem > 0
                               ? item.itemId() == m_emphasisedItem
                               : m_emphasisedEntry > 0 && item.dataId() == m_emphasisedEntry;
    if (isPointed)
        look |= PaintedFigure::Emphasised;
    if (m_faultyItem > 0 && item.itemId() == m_faultyItem)
        look |= PaintedFigure::Faulty;
    return {item.figure(), look};
}
