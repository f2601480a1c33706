#include "scene/foldarrow.h"

#include <QPainter>

namespace
{

constexpr int kExtent = 16;
constexpr double kHalfWidth = 4.0;
constexpr double kHalfHeight = 2.0;
constexpr double kFoldedAngle = -90.0;

} // namespace

FoldArrow::FoldArrow(QWidget* parent) : QWidget(parent)
{
    setFixedSize(kExtent, kExtent);
}

void FoldArrow::setFolded(bool folded)
{
    m_folded = folded;
    update();
}

void FoldArrow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    if (m_folded)
        painter.rotate(kFoldedAngle);
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1.6, Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    const QPointF chevron[] = {
        {-kHalfWidth, -kHalfHeight}, {0, kHalfHeight}, {kHalfWidth, -kHalfHeight}};
    painter.drawPolyline(chevron, 3);
}
