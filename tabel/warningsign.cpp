#include "tabel/warningsign.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace
{

constexpr int kIconScale = 2; ///< pixels of the icon to a logical one, for dense screens
const QColor kFilling(0xFF, 0xC8, 0x2E);
const QColor kInk(0x5C, 0x33, 0x00);

} // namespace

void WarningSign::paint(QPainter& painter, const QPoint& corner)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(corner);
    QPainterPath triangle(QPointF(6, 0.8));
    triangle.lineTo(11.4, 11.2);
    triangle.lineTo(0.6, 11.2);
    triangle.closeSubpath();
    painter.setPen(QPen(kInk, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(kFilling);
    painter.drawPath(triangle);
    painter.setPen(QPen(kInk, 1.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(6, 4.2), QPointF(6, 7.2));
    painter.drawPoint(QPointF(6, 9.3));
    painter.restore();
}

QIcon WarningSign::icon()
{
    QPixmap pixmap(kExtent * kIconScale, kExtent * kIconScale);
    pixmap.setDevicePixelRatio(kIconScale);
    pixmap.fill(Qt::transparent);
    {
        QPainter painter(&pixmap);
        paint(painter, {0, 0});
    }
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Disabled);
    return icon;
}
