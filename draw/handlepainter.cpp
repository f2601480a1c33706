#include "draw/handlepainter.h"

namespace
{

const Gdiplus::ARGB kEdgeColor = 0xFF101418;
const Gdiplus::ARGB kHandleColor = 0xFFFFD700;
// From the middle to the outer edge, in pixels.
constexpr int kCorner = 5;
constexpr int kMiddle = 3;

} // namespace

HandlePainter::HandlePainter(Gdiplus::Graphics& graphics)
    : m_graphics(graphics), m_edge(Gdiplus::Color(kEdgeColor)), m_gold(Gdiplus::Color(kHandleColor))
{
}

void HandlePainter::handle(const QPoint& at, bool isCorner, bool isChosen) const
{
    const int size = isCorner ? kCorner : kMiddle;
    const auto square = [&](const Gdiplus::Brush& brush, int half) {
        m_graphics.FillRectangle(&brush, at.x() - half, at.y() - half, 2 * half, 2 * half);
    };
    square(m_edge, size);
    square(m_gold, size - 1);
    if (!isChosen)
        square(m_edge, size - 2);
}
