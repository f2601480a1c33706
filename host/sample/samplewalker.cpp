#include "host/sample/samplewalker.h"

#include "host/sample/streetview.h"

#include <QPainter>
#include <QtMath>

using namespace UICommonMdl::streetview;

namespace UICommonMdl
{
namespace
{

constexpr QRgb kSkin = 0xFFD9AE8C;
constexpr QRgb kHair = 0xFF4A3B32;

/// Paints limbs: lines with round ends between places given in parts of the walker's height.
class Limbs
{
public:
    Limbs(QPainter& painter, const QPointF& feet, qreal unit)
        : m_painter(painter), m_feet(feet), m_unit(unit)
    {
    }

    void line(const QColor& color, qreal width, const QPointF& from, const QPointF& to)
    {
        m_painter.setPen(QPen(color, width * m_unit, Qt::SolidLine, Qt::RoundCap));
        m_painter.drawLine(at(from), at(to));
    }

    void disc(const QColor& color, const QPointF& middle, qreal radius)
    {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(color);
        m_painter.drawEllipse(at(middle), radius * m_unit, radius * m_unit * 1.12);
    }

private:
    QPointF at(const QPointF& part) const { return m_feet + QPointF(part.x(), -part.y()) * m_unit; }

    QPainter& m_painter;
    QPointF m_feet;
    qreal m_unit;
};

} // namespace

void paintWalker(QPainter& painter, const SampleWalker& walker, qreal x, qreal z, qreal step,
                 qreal opacity)
{
    const qreal swing = 0.075 * qSin(step * M_PI);
    const QColor coat = hazed(walker.coat, z);
    const QColor legs = hazed(walker.trousers, z);
    painter.setOpacity(opacity);
    paintShadow(painter, {x + 0.25, 0, z}, 0.5, 0.35);
    Limbs limbs(painter, project({x, 0, z}), walker.height * scaleAt(z));
    limbs.line(legs.darker(115), 0.075, {-0.03, 0.47}, {-0.03 - swing, qMax(0.0, swing) * 0.4});
    limbs.line(legs, 0.075, {0.03, 0.47}, {0.03 + swing, qMax(0.0, -swing) * 0.4});
    limbs.line(coat.darker(120), 0.06, {-0.1, 0.76}, {-0.12 + swing, 0.5});
    limbs.line(coat, 0.17, {0, 0.75}, {0, 0.52});
    limbs.line(coat.darker(108), 0.06, {0.1, 0.76}, {0.12 - swing, 0.5});
    limbs.disc(hazed(QColor::fromRgba(kSkin), z), {0, 0.91}, 0.062);
    limbs.disc(hazed(QColor::fromRgba(kHair), z), {0, 0.945}, 0.055);
    painter.setOpacity(1);
}

} // namespace UICommonMdl
