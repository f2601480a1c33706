#include "draw/figurecorrector.h"

#include "draw/basedraw.h"
#include "draw/canvasfigure.h"
#include "draw/correctioncheck.h"
#include "draw/drawgeometry.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "draw/figurehandle.h"
#include "draw/figureindex.h"
#include "draw/figurekinds.h"
#include "draw/figuremove.h"
#include "draw/figureshape.h"
#include "draw/figuresurroundings.h"
#include "draw/handlepainter.h"
#include "host/api/limits.h"

#include <cmath>
#include <utility>

namespace
{

using Kind = FigureHandle::Kind;

int normalizedStep(int pixels, int extent)
{
    if (pixels == 0 || extent < 1)
        return 0;
    const double step = std::round(double(pixels) * DrawGeometry::kNormalizedExtent / extent);
    const int whole = static_cast<int>(qBound(-1.0e6, step, 1.0e6));
    return whole != 0 ? whole : pixels > 0 ? 1 : -1;
}

} // namespace

FigureCorrector::FigureCorrector() = default;
FigureCorrector::~FigureCorrector() = default;

void FigureCorrector::setScene(DrawScene* scene, AreaRule rule)
{
    chooseNothing();
    m_scene = scene;
    m_rule = std::move(rule);
    m_hoveredId = 0;
}

bool FigureCorrector::hover(const std::optional<QPoint>& at)
{
    const bool mayShow = m_scene && at && !isMoving() && !m_scene->isDrawing();
    const DrawItem* item = mayShow ? hoveredAt(*at) : nullptr;
    const int before = std::exchange(m_hoveredId, item ? item->itemId() : 0);
    return before != m_hoveredId;
}

bool FigureCorrector::hasHandle(const QPoint& at) const
{
    return handleAt(at).item;
}

bool FigureCorrector::take(const QPoint& at, bool isWhole)
{
    chooseNothing();
    const Target whole{isWhole ? figureAt(at, true) : nullptr};
    const Target target = whole.item ? whole : handleAt(at);
    if (!target.item)
        return false;
    start(target);
    return true;
}

void FigureCorrector::start(const Target& target)
{
    const Figure figure = target.item->value();
    const auto move = target.line >= 0          ? FigureMove::ofNewCorner(figure, target.line)
                      : target.corner == kWhole ? FigureMove::ofWhole(figure)
                                                : FigureMove::ofCorner(figure, target.corner);
    m_move = std::make_unique<FigureMove>(move);
    m_check = std::make_unique<CorrectionCheck>(m_scene->surroundings(), *target.item,
                                                m_rule(*target.item));
    choose(*target.item, target.line >= 0 ? target.line + 1 : target.corner);
    m_hoveredId = m_itemId;
    moveTo({}, {});
}

void FigureCorrector::choose(const DrawItem& item, int corner)
{
    m_itemId = item.itemId();
    m_corner = corner;
    m_pointCount = item.value().pointCount();
}

bool FigureCorrector::isNewCorner() const
{
    return isMoving() && m_corner != kWhole && m_move->originOf(m_corner) < 0;
}

bool FigureCorrector::moveTo(const QPoint& from, const QPoint& to)
{
    if (!isMoving())
        return false;
    const Figure moved = m_move->by(normalized(pastBorder(from, to)));
    if (m_moved && *m_moved == moved)
        return false;
    m_moved = std::make_unique<Figure>(moved);
    m_refusal = moved == m_move->original() ? DrawRefusal::None : m_check->ofMove(moved, *m_move);
    m_scene->setPreview(m_itemId, moved, m_refusal != DrawRefusal::None);
    m_scene->setRefusal(m_refusal);
    return true;
}

/// A handle that was taken beside its middle gets there with the mouse, which goes no farther.
QPoint FigureCorrector::pastBorder(const QPoint& from, const QPoint& to) const
{
    const QSize canvas = m_scene->canvasSize();
    const auto further = [](int start, int end, int extent) {
        if (start == end || (end > 0 && end < extent))
            return 0;
        return end > 0 ? FigureShape::kReach : -FigureShape::kReach;
    };
    const QPoint way = to - from;
    if (m_corner == kWhole)
        return way;
    return way + QPoint(further(from.x(), to.x(), canvas.width()),
                        further(from.y(), to.y(), canvas.height()));
}

bool FigureCorrector::letGo()
{
    if (!isMoving())
        return false;
    const FigureMove way = *m_move;
    const Figure moved = *m_moved;
    const DrawRefusal refusal = m_refusal;
    const int corner = m_corner;
    DrawItem* item = chosenItem();
    putBack();
    // Something else may have drawn it anew meanwhile.
    const bool isChanged =
        item && item->value() == way.original() && move(*item, moved, way, refusal);
    if (isChanged)
        choose(*item, corner);
    return isChanged;
}

void FigureCorrector::putBack()
{
    if (!isMoving())
        return;
    m_scene->setPreview(m_itemId, std::nullopt, false);
    m_scene->setRefusal(DrawRefusal::None);
    // A new corner goes with the move.
    if (isNewCorner())
        m_itemId = 0;
    m_move.reset();
    m_check.reset();
    m_moved.reset();
    m_refusal = DrawRefusal::None;
}

QString FigureCorrector::chosenName() const
{
    return QStringLiteral("%1/%2").arg(m_itemId).arg(m_corner);
}

void FigureCorrector::chooseNothing()
{
    putBack();
    if (m_scene && !m_scene->isDrawing())
        m_scene->setRefusal(DrawRefusal::None);
    m_itemId = 0;
    m_corner = kWhole;
}

bool FigureCorrector::isChosenThere() const
{
    const DrawItem* item = chosenItem();
    if (!item || !mayTake(*item))
        return false;
    return item->value().pointCount() == m_pointCount;
}

bool FigureCorrector::moveChosen(const QPoint& pixels)
{
    DrawItem* item = chosenItem();
    if (!item || isMoving() || !mayTake(*item))
        return false;
    const Figure figure = item->value();
    const FigureMove way =
        m_corner == kWhole ? FigureMove::ofWhole(figure) : FigureMove::ofCorner(figure, m_corner);
    const CorrectionCheck check(m_scene->surroundings(), *item, m_rule(*item));
    const Figure moved = way.by(normalized(pixels));
    return move(*item, moved, way, check.ofMove(moved, way));
}

bool FigureCorrector::removeChosen()
{
    DrawItem* item = chosenItem();
    return item && m_corner != kWhole && !isMoving() && removeCorner(*item, m_corner);
}

bool FigureCorrector::removeAt(const QPoint& at)
{
    chooseNothing();
    const Target target = handleAt(at);
    return target.item && target.line < 0 && removeCorner(*target.item, target.corner);
}

bool FigureCorrector::removeCorner(DrawItem& item, int corner)
{
    Figure figure = item.value();
    const bool isPoint = FigureKind::formOf(figure.kind()) != FigureForm::Box;
    if (!mayTake(item) || !isPoint || !figure.removePoint(corner)) {
        m_scene->setRefusal(DrawRefusal::Needed);
        return false;
    }
    const CorrectionCheck check(m_scene->surroundings(), item, m_rule(item));
    if (!change(item, figure, check.ofShape(figure)))
        return false;
    chooseNothing();
    return true;
}

/// Whether the figure is @p figure now, and was not before.
bool FigureCorrector::change(DrawItem& item, const Figure& figure, DrawRefusal refusal)
{
    m_scene->setRefusal(refusal);
    if (refusal != DrawRefusal::None || item.value() == figure)
        return false;
    return item.figure()->setFigure(figure);
}

/// The same, with what the figure carries.
bool FigureCorrector::move(DrawItem& item, const Figure& moved, const FigureMove& move,
                           DrawRefusal refusal)
{
    if (!change(item, moved, refusal))
        return false;
    for (const auto& child : item.children()) {
        const Figure was = child->value();
        if (FigureMove::carries(move.original(), was))
            child->figure()->setFigure(move.carried(was, moved));
    }
    return true;
}

FigureCorrector::Target FigureCorrector::handleAt(const QPoint& at) const
{
    Target found;
    std::optional<FigureHandle> best;
    if (!m_scene || m_scene->isDrawing())
        return found;
    const QList<DrawItem*> items = m_scene->figuresByPlace().around(at);
    for (DrawItem* item : items) {
        if (!mayTake(*item))
            continue;
        const auto handle =
            FigureHandle::nearest(FigureHandle::of(item->figure()->canvasFigure()), at);
        if (!handle || (best && !handle->isBefore(*best, at)))
            continue;
        best = handle;
        const bool isCorner = handle->kind == Kind::Corner;
        found = {item, isCorner ? handle->index : kWhole, isCorner ? -1 : handle->index};
    }
    return found;
}

DrawItem* FigureCorrector::figureAt(const QPoint& at, bool mustHold) const
{
    const auto isTakeable = [this](const DrawItem& item) { return mayTake(item); };
    return m_scene ? m_scene->figuresByPlace().under(at, isTakeable, mustHold) : nullptr;
}

/// The figure that a press would take, or that is under the mouse.
DrawItem* FigureCorrector::hoveredAt(const QPoint& at) const
{
    DrawItem* item = handleAt(at).item;
    return item ? item : figureAt(at, false);
}

bool FigureCorrector::mayTake(const DrawItem& item) const
{
    const bool isCarried =
        item.parent() && FigureMove::carries(item.parent()->value(), item.value());
    return item.figure() && item.isFinished() && item.dataId() == m_scene->currentDataId() &&
           !isCarried && item.value().pointCount() <= Limits::kCorrectedPoints &&
           !m_scene->isDrawing();
}

DrawItem* FigureCorrector::chosenItem() const
{
    return m_scene ? m_scene->findItem(m_itemId) : nullptr;
}

QPoint FigureCorrector::normalized(const QPoint& pixels) const
{
    const QSize canvas = m_scene->canvasSize();
    return {normalizedStep(pixels.x(), canvas.width()),
            normalizedStep(pixels.y(), canvas.height())};
}

bool FigureCorrector::isChosen(const FigureHandle& handle) const
{
    // A new corner is the middle of a line until it is moved.
    if (isNewCorner() && *m_moved == m_move->original())
        return handle.kind == Kind::Middle && handle.index == m_corner - 1;
    return handle.kind == Kind::Corner && (m_corner == kWhole || m_corner == handle.index);
}

void FigureCorrector::draw(Gdiplus::Graphics* graphics) const
{
    if (!graphics || !m_scene)
        return;
    const HandlePainter painter(*graphics);
    for (const int id : {m_hoveredId, m_itemId}) {
        const DrawItem* item = m_scene->findItem(id);
        if (!item || !mayTake(*item))
            continue;
        for (const FigureHandle& handle : FigureHandle::of(item->figure()->shownFigure())) {
            const bool isFilled = id == m_itemId && isChosen(handle);
            if (isFilled || (id == m_hoveredId && !isMoving()))
                painter.handle(handle.at, handle.kind == Kind::Corner, isFilled);
        }
    }
}
