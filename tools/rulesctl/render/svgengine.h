#pragma once

#include <QColor>
#include <QFont>
#include <QPaintEngine>
#include <QPen>
#include <QPolygonF>
#include <QTransform>
#include <QXmlStreamAttributes>

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

    /// Writes what is held back, and ends the group of what looks the same.
    void finish();

private:
    void finishLine();
    /// Begins the element @p name, which looks like @p style.
    void beginElement(const char* name, const QXmlStreamAttributes& style);
    void writePoints(const QPolygonF& points);
    QXmlStreamAttributes stroke(const QString& fill) const;
    QXmlStreamAttributes fillAndStroke() const;
    QXmlStreamAttributes textStyle(const QFont& font) const;

    QXmlStreamWriter& m_xml; ///< not owned
    QPen m_pen;
    QBrush m_brush;
    QTransform m_transform;
    QPolygonF m_line; ///< goes on as long as lines do
    // Of the last text, which is mostly painted several times.
    QXmlStreamAttributes m_textStyle;
    QColor m_textColor;
    QFont m_textFont;
    QXmlStreamAttributes m_style; ///< of the group that is open; empty for none
};
