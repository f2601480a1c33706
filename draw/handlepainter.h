#pragma once

#include "host/gdiplus.h"

#include <QPoint>

/// Paints the places at which a figure can be taken, in canvas pixels; to be told from any picture
/// by a dark edge. Lives for one painting, shorter than @p graphics.
class HandlePainter
{
public:
    explicit HandlePainter(Gdiplus::Graphics& graphics);

    /// The one of a corner is larger; one that is chosen is filled.
    void handle(const QPoint& at, bool isCorner, bool isChosen) const;

private:
    Gdiplus::Graphics& m_graphics; ///< not owned
    Gdiplus::SolidBrush m_edge;
    Gdiplus::SolidBrush m_gold;
};
