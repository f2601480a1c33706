#include "host/gdiplus/graphics.h"

#include "host/gdiplus/font.h"
#include "host/gdiplus/graphicspath.h"
#include "host/gdiplus/image.h"
#include "host/gdiplus/ink.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Gdiplus
{

namespace
{

template<typename... Values>
bool areFinite(Values... values)
{
    return (std::isfinite(values) && ...);
}

QFont::StyleStrategy textStrategy(TextRenderingHint hint)
{
    switch (hint) {
    case TextRenderingHintSystemDefault:
    case TextRenderingHintClearTypeGridFit:
        break;
    case TextRenderingHintSingleBitPerPixelGridFit:
    case TextRenderingHintSingleBitPerPixel:
        return QFont::NoAntialias;
    case TextRenderingHintAntiAliasGridFit:
    case TextRenderingHintAntiAlias:
        return QFont::NoSubpixelAntialias;
    }
    return QFont::PreferDefault;
}

} // namespace

Graphics::Graphics(HDC hdc)
{
    if (!hdc || !hdc->isActive()) {
        m_status = InvalidParameter;
        return;
    }
    m_painter = hdc;
    begin();
}

Graphics::Graphics(Image* image)
{
    if (!image || !image->m_pixels) {
        m_status = InvalidParameter;
        return;
    }
    if (image->m_pixels->paintingActive()) {
        m_status = ObjectBusy;
        return;
    }
    m_pixels = image->m_pixels;
    m_ownPainter = std::make_unique<QPainter>(m_pixels.get());
    m_painter = m_ownPainter.get();
    begin();
}

Graphics::~Graphics()
{
    if (isReady())
        m_painter->restore();
}

Status Graphics::GetLastStatus() const
{
    return std::exchange(m_status, Ok);
}

Status Graphics::SetSmoothingMode(SmoothingMode mode)
{
    if (!isReady() || mode < SmoothingModeDefault || mode > SmoothingModeAntiAlias)
        return report(InvalidParameter);
    setAntialiased(mode == SmoothingModeAntiAlias || mode == SmoothingModeHighQuality);
    return Ok;
}

Status Graphics::SetTextRenderingHint(TextRenderingHint hint)
{
    if (!isReady() || hint < TextRenderingHintSystemDefault ||
        hint > TextRenderingHintClearTypeGridFit)
        return report(InvalidParameter);
    m_state.textStrategy = textStrategy(hint);
    return Ok;
}

REAL Graphics::GetDpiX() const
{
    return REAL(96 * pixelRatio());
}

Status Graphics::TranslateTransform(REAL dx, REAL dy, MatrixOrder order)
{
    if (!areFinite(dx, dy))
        return report(InvalidParameter);
    return transform(QTransform::fromTranslate(qreal(dx), qreal(dy)), order);
}

Status Graphics::RotateTransform(REAL angle, MatrixOrder order)
{
    if (!areFinite(angle))
        return report(InvalidParameter);
    return transform(QTransform().rotate(qreal(angle)), order);
}

Status Graphics::ResetTransform()
{
    if (!isReady())
        return report(InvalidParameter);
    m_state.world = {};
    m_transformChanged = true;
    return Ok;
}

GraphicsState Graphics::Save() const
{
    m_saved.push_back(m_state);
    m_saved.back().id = ++m_lastStateId;
    return m_lastStateId;
}

Status Graphics::Restore(GraphicsState state)
{
    const auto saved = std::find_if(m_saved.begin(), m_saved.end(),
                                    [state](const State& s) { return s.id == state; });
    if (!isReady() || saved == m_saved.end())
        return report(InvalidParameter);
    setAntialiased(saved->antialiased);
    m_state = *saved;
    m_transformChanged = true;
    m_saved.erase(saved, m_saved.end());
    return Ok;
}

Status Graphics::Clear(const Color& color)
{
    if (!isReady())
        return report(InvalidParameter);
    const QPainter::CompositionMode mode = m_painter->compositionMode();
    m_painter->setWorldTransform({});
    m_transformChanged = true;
    m_painter->setCompositionMode(QPainter::CompositionMode_Source);
    m_painter->fillRect(m_painter->window(), QColor::fromRgba(color.GetValue()));
    m_painter->setCompositionMode(mode);
    return Ok;
}

Status Graphics::DrawLine(const Pen* pen, REAL x1, REAL y1, REAL x2, REAL y2)
{
    if (!isReady() || !pen || !areFinite(x1, y1, x2, y2))
        return report(InvalidParameter);
    applyTransform();
    m_painter->setPen(pen->m_pen);
    m_painter->drawLine(QLineF(qreal(x1), qreal(y1), qreal(x2), qreal(y2)));
    return Ok;
}

Status Graphics::DrawLine(const Pen* pen, INT x1, INT y1, INT x2, INT y2)
{
    if (!isReady() || !pen)
        return report(InvalidParameter);
    applyTransform();
    m_painter->setPen(pen->m_pen);
    m_painter->drawLine(QLineF(x1, y1, x2, y2));
    return Ok;
}

Status Graphics::DrawRectangle(const Pen* pen, REAL x, REAL y, REAL width, REAL height)
{
    if (!isReady() || !pen || !areFinite(x, y, width, height))
        return report(InvalidParameter);
    if (width < 0 || height < 0)
        return Ok;
    applyTransform();
    m_painter->setPen(pen->m_pen);
    m_painter->drawRect(QRectF(qreal(x), qreal(y), qreal(width), qreal(height)));
    return Ok;
}

Status Graphics::DrawRectangle(const Pen* pen, INT x, INT y, INT width, INT height)
{
    return DrawRectangle(pen, REAL(x), REAL(y), REAL(width), REAL(height));
}

Status Graphics::FillRectangle(const Brush* brush, REAL x, REAL y, REAL width, REAL height)
{
    if (!isReady() || !brush || !areFinite(x, y, width, height))
        return report(InvalidParameter);
    if (width <= 0 || height <= 0)
        return Ok;
    applyTransform();
    m_painter->fillRect(QRectF(qreal(x), qreal(y), qreal(width), qreal(height)), brush->m_brush);
    return Ok;
}

Status Graphics::FillRectangle(const Brush* brush, INT x, INT y, INT width, INT height)
{
    return FillRectangle(brush, REAL(x), REAL(y), REAL(width), REAL(height));
}

Status Graphics::FillPath(const Brush* brush, const GraphicsPath* path)
{
    if (!isReady() || !brush || !path)
        return report(InvalidParameter);
    applyTransform();
    m_painter->fillPath(path->m_path, brush->m_brush);
    return Ok;
}

Status Graphics::DrawImage(Image* image, INT x, INT y)
{
    if (!isReady() || !image || !image->m_pixels)
        return report(InvalidParameter);
    if (image->m_pixels == m_pixels)
        return report(ObjectBusy);
    applyTransform();
    m_painter->drawImage(QPointF(x, y), *image->m_pixels);
    return Ok;
}

qreal Graphics::pixelRatio() const
{
    return isReady() ? m_painter->device()->devicePixelRatioF() : 1;
}

void Graphics::begin()
{
    m_painter->save();
    m_base = m_painter->worldTransform();
    m_painter->setBrush(Qt::NoBrush);
    m_painter->setRenderHint(QPainter::Antialiasing, false);
}

bool Graphics::isReady() const
{
    return m_painter && m_painter->isActive();
}

Status Graphics::report(Status status) const
{
    m_status = status;
    return status;
}

Status Graphics::transform(const QTransform& change, MatrixOrder order)
{
    if (!isReady())
        return report(InvalidParameter);
    m_state.world = order == MatrixOrderAppend ? m_state.world * change : change * m_state.world;
    m_transformChanged = true;
    return Ok;
}

void Graphics::setAntialiased(bool on)
{
    if (m_state.antialiased == on)
        return;
    m_state.antialiased = on;
    m_painter->setRenderHint(QPainter::Antialiasing, on);
}

void Graphics::applyTransform()
{
    if (!m_transformChanged)
        return;
    m_painter->setWorldTransform(m_state.world * m_base);
    m_transformChanged = false;
}

} // namespace Gdiplus
