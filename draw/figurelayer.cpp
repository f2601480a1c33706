#include "draw/figurelayer.h"

#include "host/api/limits.h"
#include "host/gdiplus.h"

#include <utility>

FigureLayer::FigureLayer() = default;

FigureLayer::~FigureLayer() = default;

void FigureLayer::draw(Gdiplus::Graphics& graphics, const QSize& size, Revisions shown,
                       const Painter& paint)
{
    if (!keeps(graphics, size, shown))
        keep(graphics, size, std::move(shown), paint);
    if (m_kept)
        graphics.DrawImage(m_kept.get(), 0, 0);
    else
        paint(graphics);
}

void FigureLayer::drop()
{
    m_kept.reset();
}

void FigureLayer::setQuality(Gdiplus::Graphics& graphics)
{
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
}

bool FigureLayer::keeps(const Gdiplus::Graphics& graphics, const QSize& size,
                        const Revisions& shown) const
{
    return m_kept && m_size == size && m_dotsPerInch == graphics.GetDpiX() && m_shown == shown;
}

void FigureLayer::keep(Gdiplus::Graphics& graphics, const QSize& size, Revisions shown,
                       const Painter& paint)
{
    m_kept.reset();
    if (qint64{size.width()} * size.height() > Limits::kPixels)
        return;
    auto bitmap = std::make_unique<Gdiplus::Bitmap>(size.width(), size.height(), &graphics);
    if (bitmap->GetLastStatus() != Gdiplus::Ok)
        return;
    m_kept = std::move(bitmap);
    Gdiplus::Graphics layer(m_kept.get());
    setQuality(layer);
    paint(layer);
    m_size = size;
    m_dotsPerInch = graphics.GetDpiX();
    m_shown = std::move(shown);
}
