#include "draw/basedraw.h"

#include "draw/canvasfigure.h"
#include "draw/drawgeometry.h"
#include "draw/figurepainter.h"

#include <algorithm>

namespace
{

const Gdiplus::ARGB kNormalColor = 0xFF007DFF;
const Gdiplus::ARGB kSelectedColor = 0xFFFFD700;

std::atomic<quint64> g_selectionRevision{0};
std::atomic<quint64> g_lastRevision{0};

// So many revisions of a figure, one for each move of its rubber band, lie between two changes.
constexpr quint64 kMovesPerChange = 1 << 24;

} // namespace

BaseDraw::BaseDraw(const Figure& figure)
    : m_revision(++g_lastRevision * kMovesPerChange), m_figure(figure)
{
}

bool BaseDraw::addPoint(int x, int y)
{
    const QMutexLocker lock(&m_mutex);
    const QVector<QPoint> added = clicked({m_figure, m_movePoint, m_canvasSize}, {x, y});
    if (added.isEmpty())
        return true;
    bool taken = true;
    for (const QPoint& point : added)
        taken = m_figure.addPoint(point) && taken;
    change();
    return !taken;
}

void BaseDraw::setMovePoint(int x, int y)
{
    const QMutexLocker lock(&m_mutex);
    QPoint end = normalizedMouse({x, y});
    if (!moved(m_figure, end))
        return;
    m_movePoint = end;
    // A finished figure does not show it, and the mouse moves over those all the time.
    if (!m_figure.isFinished())
        changeBand();
}

void BaseDraw::draw(Gdiplus::Graphics* graphics)
{
    if (!graphics)
        return;
    const QMutexLocker lock(&m_mutex);
    if (isRefused())
        paintShown(FigurePainter::ofRefused(*graphics));
    else
        paintShown(FigurePainter(*graphics, color()));
}

void BaseDraw::drawBeneath(Gdiplus::Graphics& graphics, const Gdiplus::Color& color,
                           float width) const
{
    const QMutexLocker lock(&m_mutex);
    if (!isRefused())
        paintShown(FigurePainter::ofBand(graphics, color, width));
}

void BaseDraw::drawCasing(Gdiplus::Graphics& graphics) const
{
    const QMutexLocker lock(&m_mutex);
    const Gdiplus::Color red(FigurePainter::kRefusedColor);
    paintShown(FigurePainter::ofCasing(graphics, isRefused() ? red : color()));
}

void BaseDraw::paintShown(const FigurePainter& painter) const
{
    const CanvasFigure shown(painted(), m_movePoint, m_canvasSize);
    if (shown.shownPoints().size() >= 2)
        paint(painter, shown);
}

std::unique_ptr<Gdiplus::GraphicsPath> BaseDraw::getForbidenArea() const
{
    return nullptr;
}

int BaseDraw::clicksNeeded() const
{
    const Figure drawn = figure();
    return std::max(0, drawn.pointLimits().minimum - drawn.pointCount());
}

void BaseDraw::getPoints(QVector<QPoint>& points) const
{
    points += figure().points();
}

Gdiplus::Color BaseDraw::color() const
{
    return Gdiplus::Color(m_selected ? kSelectedColor : kNormalColor);
}

Figure BaseDraw::figure() const
{
    const QMutexLocker lock(&m_mutex);
    return m_figure;
}

bool BaseDraw::setFigure(const Figure& figure)
{
    const QMutexLocker lock(&m_mutex);
    if (figure.kind() != m_figure.kind())
        return false;
    if (m_figure != figure)
        change();
    m_figure = figure;
    return true;
}

CanvasFigure BaseDraw::canvasFigure() const
{
    const QMutexLocker lock(&m_mutex);
    return {m_figure, m_movePoint, m_canvasSize};
}

void BaseDraw::setPreview(const std::optional<Figure>& figure, bool isRefused)
{
    const QMutexLocker lock(&m_mutex);
    m_preview = figure ? std::make_unique<Preview>(Preview{*figure, isRefused}) : nullptr;
    change();
}

CanvasFigure BaseDraw::shownFigure() const
{
    const QMutexLocker lock(&m_mutex);
    return {painted(), m_movePoint, m_canvasSize};
}

void BaseDraw::clear()
{
    const QMutexLocker lock(&m_mutex);
    m_figure.setPoints({});
    m_figure.setFinished(false);
    m_movePoint.reset();
    change();
}

QVector<QPoint> BaseDraw::canvasPoints() const
{
    return canvasFigure().points();
}

std::optional<QPoint> BaseDraw::canvasPoint(int index) const
{
    const CanvasFigure shown = canvasFigure();
    if (!shown.figure().pointAt(index))
        return std::nullopt;
    return shown.points()[index];
}

void BaseDraw::setMovePoint(const std::optional<QPoint>& canvasPoint)
{
    const QMutexLocker lock(&m_mutex);
    if (canvasPoint)
        m_movePoint = normalizedMouse(*canvasPoint);
    else
        m_movePoint.reset();
    change();
}

std::optional<QPoint> BaseDraw::movePoint() const
{
    const QMutexLocker lock(&m_mutex);
    if (!m_movePoint)
        return std::nullopt;
    return DrawGeometry::toCanvas(*m_movePoint, m_canvasSize);
}

bool BaseDraw::tryFinish()
{
    const bool valid = isPointCountValid();
    setFinished(valid);
    return valid;
}

void BaseDraw::setSelected(bool selected)
{
    if (m_selected == selected)
        return;
    m_selected = selected;
    ++g_selectionRevision;
    change();
}

void BaseDraw::setCanvasSize(int width, int height)
{
    const QMutexLocker lock(&m_mutex);
    const QSize size(std::max(width, 0), std::max(height, 0));
    if (m_canvasSize == size)
        return;
    m_canvasSize = size;
    change();
}

QSize BaseDraw::canvasSize() const
{
    const QMutexLocker lock(&m_mutex);
    return m_canvasSize;
}

quint64 BaseDraw::selectionRevision()
{
    return g_selectionRevision;
}

quint64 BaseDraw::lastRevision()
{
    return g_lastRevision;
}

QVector<QPoint> BaseDraw::clicked(const CanvasFigure& drawn, const QPoint& canvasPoint) const
{
    return {drawn.normalized(canvasPoint)};
}

bool BaseDraw::moved(const Figure&, QPoint&) const
{
    return true;
}

QPoint BaseDraw::normalizedMouse(const QPoint& canvasPoint) const
{
    return DrawGeometry::toNormalized(canvasPoint, m_canvasSize)
        .value_or(m_movePoint.value_or(QPoint()));
}

void BaseDraw::change()
{
    m_revision.store(++g_lastRevision * kMovesPerChange, std::memory_order_release);
}

void BaseDraw::changeBand()
{
    const quint64 next = m_revision.load(std::memory_order_relaxed) + 1;
    if (next % kMovesPerChange == 0)
        change();
    else
        m_revision.store(next, std::memory_order_release);
}
