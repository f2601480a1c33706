#pragma once

#include <QPaintEngine>
#include <QPen>
#include <QPolygonF>
#include <QTransform>

class QXmlStreamWriter;

/// The painting of SvgDevice.
class SvgEngine : public QPaintEngine
{
public:
    explicit SvgEngine(QXmlStreamWriter& xml);

    bool begin(QPaintDevice* device) override;
    bool end() override;
    void updateState(const QPaintEngineState& now) override;
    void drawLines(const QLineF* lines, int count) override;
    void drawPath(const QPainterPath& path) override;
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override
    {
    }
    void drawTextItem(const QPointF& at, const QTextItem& text) override;
    Type type() const override { return User; }

    void finishElement();

private:
    void writePoints(const QPolygonF& points);
    void writeStroke();
    void writeFill();

    QXmlStreamWriter& m_xml; ///< not owned
    QPen m_pen;
    QBrush m_brush;
    QTransform m_transform;
    QPolygonF m_line; ///< goes on as long as lines do
};
