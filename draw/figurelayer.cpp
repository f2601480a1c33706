#include "draw/figurelayer.h"

#include "host/gdiplus.h"

#include <utility>

namespace
{

/// Painting fewer figures takes about as long as laying a picture over another, or less.
constexpr std::size_t kWorthKeeping = 16;
/// A canvas of more pixels than any screen has is painted straight, for the memory's sake.
constexpr qint64 kMostPixels = qint64{64} * 1024 * 1024;

bool isWorthKeeping(std::size_t things, const QSize& size)
{
    return things >= kWorthKeeping && qint64{size.width()} * size.height() <= kMostPixels;
}

} // namespace

FigureLayer::FigureLayer() = default;

FigureLayer::~FigureLayer() = default;

void FigureLayer::draw(Gdiplus::Graphics& graphics, const QSize& size, Revisions shown,
                       const Painter& paint)
{
    if (!isWorthKeeping(shown.size(), size))
        m_kept.reset();
    else if (!keeps(graphics, size, shown))
        keep(graphics, size, std::move(shown), paint);
    if (m_kept)
        graphics.DrawImage(m_kept.get(), 0, 0);
    else
        paint(graphics);
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
    m_kept = std::make_unique<Gdiplus::Bitmap>(size.width(), size.height(), &graphics);
    if (m_kept->GetLastStatus() != Gdiplus::Ok) {
        m_kept.reset();
        return;
    }
    Gdiplus::Graphics layer(m_kept.get());
    setQuality(layer);
    paint(layer);
    m_size = size;
    m_dotsPerInch = graphics.GetDpiX();
    m_shown = std::move(shown);
}
