#pragma once

#include <QPoint>
#include <QSize>

namespace Gdiplus
{
class Graphics;
}

/// The place on a canvas at which keys draw, as the mouse does at its own. Canvas pixels; both
/// borders of the canvas can be reached.
class CrossHair
{
public:
    /// Whether it is seen: from the first move on until it is hidden.
    bool isShown() const { return m_isShown; }
    void hide() { m_isShown = false; }
    /// Where it starts from when it is not shown.
    void startAt(const QPoint& position);
    /// It starts in the middle again.
    void reset();
    /// Shows it, moved by @p pixels but not off the canvas.
    void moveBy(const QPoint& pixels, const QSize& canvas);
    QPoint position(const QSize& canvas) const;

    void draw(Gdiplus::Graphics& graphics, const QSize& canvas) const;

private:
    QPoint m_position;
    bool m_isStarted = false;
    bool m_isShown = false;
};
