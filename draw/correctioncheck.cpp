#include "draw/correctioncheck.h"

#include "draw/canvasfigure.h"
#include "draw/drawgeometry.h"
#include "draw/drawitem.h"
#include "draw/figurekinds.h"
#include "draw/figuremove.h"
#include "draw/figuresurroundings.h"
#include "draw/forbidenarea.h"
#include "host/gdiplus.h"

#include <algorithm>
#include <utility>

namespace
{

bool crossesItself(const Figure& figure)
{
    const QVector<QPoint>& points = figure.points();
    switch (FigureKind::formOf(figure.kind())) {
    case FigureForm::Line:
        return DrawGeometry::crossesItself(points, false);
    case FigureForm::Ring:
    case FigureForm::Parallelogram:
        return DrawGeometry::crossesItself(points, true);
    case FigureForm::TwoLines:
        return points.size() >= 4 &&
               DrawGeometry::meet({points[0], points[1]}, {points[2], points[3]});
    default:
        return false;
    }
}

} // namespace

CorrectionCheck::CorrectionCheck(const FigureSurroundings& surroundings, const DrawItem& item,
                                 DrawItemForbidenAreaType area)
    : m_original(item.value()),
      m_canvasSize(surroundings.canvasSize),
      m_areaType(area),
      m_area(surroundings.forbidenTo(item, area, &item)),
      m_isCrossed(crossesItself(m_original))
{
    if (m_original.kind() == BaseDrawType::VehicleLane || item.children().empty())
        return;
    const auto out = outside(m_original);
    for (const auto& child : item.children()) {
        const Figure inside = child->value();
        if (FigureMove::carries(m_original, inside))
            continue;
        const QVector<QPoint>& points = inside.points();
        for (const QPoint& point : points) {
            if (!out->contains(onCanvas(point)))
                m_inside.append(onCanvas(point));
        }
    }
}

CorrectionCheck::~CorrectionCheck() = default;

DrawRefusal CorrectionCheck::ofShape(const Figure& figure) const
{
    if (!m_isCrossed && crossesItself(figure))
        return DrawRefusal::Crossing;
    if (leavesChild(figure))
        return DrawRefusal::Inside;
    const bool isTurned = m_areaType == DrawItemForbidenAreaType::ForbidenSelf &&
                          isTurnedLane(figure) && !isTurnedLane(m_original);
    return isTurned ? DrawRefusal::Forbidden : DrawRefusal::None;
}

DrawRefusal CorrectionCheck::ofMove(const Figure& figure, const FigureMove& move) const
{
    const DrawRefusal refusal = ofShape(figure);
    if (refusal != DrawRefusal::None || !entersArea(figure, move))
        return refusal;
    return m_areaType == DrawItemForbidenAreaType::ForbidenOutsideParent ? DrawRefusal::Outside
                                                                         : DrawRefusal::Forbidden;
}

bool CorrectionCheck::leavesChild(const Figure& figure) const
{
    if (m_inside.isEmpty())
        return false;
    const auto out = outside(figure);
    return std::any_of(m_inside.begin(), m_inside.end(),
                       [&out](const QPoint& point) { return out->contains(point); });
}

bool CorrectionCheck::entersArea(const Figure& figure, const FigureMove& move) const
{
    if (!m_area)
        return false;
    for (int i = 0; i < figure.pointCount(); ++i) {
        const std::optional<QPoint> from = m_original.pointAt(move.originOf(i));
        const QPoint to = figure.points()[i];
        if (from == to || !m_area->contains(onCanvas(to)))
            continue;
        if (!from || !m_area->contains(onCanvas(*from)))
            return true;
    }
    return false;
}

/// Whether the second line of a lane runs back over the first one.
bool CorrectionCheck::isTurnedLane(const Figure& figure) const
{
    if (figure.kind() != BaseDrawType::VehicleLane || figure.pointCount() != 4)
        return false;
    const QVector<QPoint>& lane = figure.points();
    auto path = std::make_unique<Gdiplus::GraphicsPath>(Gdiplus::FillModeAlternate);
    ForbidenArea::addOutline(
        *path, DrawGeometry::laneForbiddenPolygon(onCanvas(lane[0]), onCanvas(lane[1]),
                                                  onCanvas(lane[2]), m_canvasSize));
    return ForbidenArea(std::move(path), m_canvasSize).contains(onCanvas(lane[3]));
}

QPoint CorrectionCheck::onCanvas(const QPoint& point) const
{
    return DrawGeometry::toCanvas(point, m_canvasSize);
}

std::unique_ptr<const ForbidenArea> CorrectionCheck::outside(const Figure& figure) const
{
    auto area = std::make_unique<ForbidenArea>(
        std::make_unique<Gdiplus::GraphicsPath>(Gdiplus::FillModeAlternate), m_canvasSize);
    area->addCanvas();
    area->addOutline(CanvasFigure(figure, std::nullopt, m_canvasSize).outline());
    return area;
}
