#pragma once

#include <QSize>
#include <QtGlobal>
#include <functional>
#include <memory>
#include <vector>

namespace Gdiplus
{
class Bitmap;
class Graphics;
} // namespace Gdiplus

/**
 * A transparent picture of figures that is kept for as long as nothing in it changes, and laid over
 * picture after picture: painting many figures costs far more than that. What is seen is the same
 * whether it was kept or painted just now, and however little is on it.
 */
class FigureLayer
{
public:
    using Revisions = std::vector<quint64>;
    using Painter = std::function<void(Gdiplus::Graphics&)>;

    FigureLayer();
    ~FigureLayer();
    FigureLayer(const FigureLayer&) = delete;
    FigureLayer& operator=(const FigureLayer&) = delete;

    /// Shows what @p paint paints on a canvas of @p size pixels. @p paint is called only when
    /// @p shown, a number for each thing painted and another one after it changed, is not what it
    /// was. Where no picture of that size can be had, it paints straight, each time.
    void draw(Gdiplus::Graphics& graphics, const QSize& size, Revisions shown,
              const Painter& paint);
    /// Lets go of the picture until the next draw().
    void drop();

    /// Sets how everything on the canvas is painted: smooth, and text the same way on a layer and
    /// on a screen, where it could else get coloured edges.
    static void setQuality(Gdiplus::Graphics& graphics);

private:
    bool keeps(const Gdiplus::Graphics& graphics, const QSize& size, const Revisions& shown) const;
    void keep(Gdiplus::Graphics& graphics, const QSize& size, Revisions shown,
              const Painter& paint);

    std::unique_ptr<Gdiplus::Bitmap> m_kept; ///< null: nothing is kept
    QSize m_size;
    float m_dotsPerInch = 0;
    Revisions m_shown;
};
