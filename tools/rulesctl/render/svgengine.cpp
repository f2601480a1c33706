#include "tools/rulesctl/render/svgengine.h"

#include "tools/rulesctl/render/xmltext.h"

#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QXmlStreamWriter>

#include <cmath>
#include <cstdlib>

namespace
{

/// To a hundredth of a pixel; there are very many of them.
QString number(double value)
{
    const qint64 hundredths = std::llround(value * 100);
    const qint64 size = std::abs(hundredths);
    QString text = hundredths < 0 ? QStringLiteral("-") : QString();
    text += QString::number(size / 100);
    if (size % 100 > 0) {
        text += QLatin1Char('.');
        text += QLatin1Char(char('0' + size % 100 / 10));
    }
    if (size % 10 > 0)
        text += QLatin1Char(char('0' + size % 10));
    return text;
}

QString pair(const QPointF& point)
{
    return number(point.x()) + QLatin1Char(',') + number(point.y());
}

QString pathData(const QPainterPath& path)
{
    QString data;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        const char* const step = element.isMoveTo()    ? "M"
                                 : element.isLineTo()  ? "L"
                                 : element.isCurveTo() ? "C"
                                                       : " ";
        data += QLatin1String(step) + pair(element);
    }
    return data;
}

void addColor(QXmlStreamAttributes& style, const QString& attribute, const QColor& color)
{
    style.append(attribute, color.name());
    if (color.alpha() < 255)
        style.append(attribute + QLatin1String("-opacity"), number(color.alphaF()));
}

} // namespace

/// All features are claimed, so that the painter hands on what it was given rather than pictures.
SvgEngine::SvgEngine(QXmlStreamWriter& xml) : QPaintEngine(AllFeatures), m_xml(xml) {}

bool SvgEngine::begin(QPaintDevice*)
{
    return true;
}

bool SvgEngine::end()
{
    finish();
    return true;
}

void SvgEngine::updateState(const QPaintEngineState& now)
{
    const auto changed = now.state();
    if ((changed & DirtyPen) && m_pen != now.pen()) {
        finishLine();
        m_pen = now.pen();
    }
    if (changed & DirtyBrush)
        m_brush = now.brush();
    if (changed & DirtyTransform)
        m_transform = now.transform();
}

void SvgEngine::drawLines(const QLineF* lines, int count)
{
    for (int i = 0; i < count; ++i) {
        const QLineF line = m_transform.map(lines[i]);
        const bool isClosed = m_line.size() > 2 && m_line.isClosed();
        if (m_line.isEmpty() || isClosed || m_line.last() != line.p1()) {
            finishLine();
            m_line.append(line.p1());
        }
        m_line.append(line.p2());
    }
}

void SvgEngine::drawPath(const QPainterPath& path)
{
    finishLine();
    QXmlStreamAttributes style = fillAndStroke();
    if (path.fillRule() == Qt::OddEvenFill)
        style.append(QStringLiteral("fill-rule"), QStringLiteral("evenodd"));
    beginElement("path", style);
    m_xml.writeAttribute(QStringLiteral("d"), pathData(m_transform.map(path)));
    m_xml.writeEndElement();
}

void SvgEngine::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode)
{
    finishLine();
    QPolygonF polygon;
    for (int i = 0; i < count; ++i)
        polygon.append(m_transform.map(points[i]));
    if (mode == PolylineMode)
        beginElement("polyline", stroke(QStringLiteral("none")));
    else
        beginElement("polygon", fillAndStroke());
    writePoints(polygon);
    m_xml.writeEndElement();
}

void SvgEngine::drawTextItem(const QPointF& at, const QTextItem& text)
{
    finishLine();
    const QPointF place = m_transform.map(at);
    const double degrees =
        std::atan2(m_transform.m12(), m_transform.m11()) * 180 / 3.14159265358979323846;
    QString transform = QStringLiteral("translate(%1)").arg(pair(place));
    if (number(degrees) != QLatin1String("0"))
        transform += QStringLiteral(" rotate(%1)").arg(number(degrees));
    if (m_textStyle.isEmpty() || m_textColor != m_pen.color() || m_textFont != text.font()) {
        m_textColor = m_pen.color();
        m_textFont = text.font();
        m_textStyle = textStyle(m_textFont);
    }
    beginElement("text", m_textStyle);
    m_xml.writeAttribute(QStringLiteral("transform"), transform);
    m_xml.writeCharacters(XmlText::writable(text.text()));
    m_xml.writeEndElement();
}

void SvgEngine::finish()
{
    finishLine();
    if (!m_style.isEmpty())
        m_xml.writeEndElement();
    m_style.clear();
}

void SvgEngine::finishLine()
{
    if (m_line.isEmpty())
        return;
    QPolygonF line;
    m_line.swap(line);
    const bool isClosed = line.size() > 2 && line.isClosed();
    if (isClosed)
        line.removeLast();
    const char* const shape = isClosed ? "polygon" : "polyline";
    beginElement(line.size() == 2 ? "line" : shape, stroke(QStringLiteral("none")));
    if (line.size() == 2) {
        m_xml.writeAttribute(QStringLiteral("x1"), number(line[0].x()));
        m_xml.writeAttribute(QStringLiteral("y1"), number(line[0].y()));
        m_xml.writeAttribute(QStringLiteral("x2"), number(line[1].x()));
        m_xml.writeAttribute(QStringLiteral("y2"), number(line[1].y()));
    } else {
        writePoints(line);
    }
    m_xml.writeEndElement();
}

/// What looks the same one after another says so once.
void SvgEngine::beginElement(const char* name, const QXmlStreamAttributes& style)
{
    if (m_style != style) {
        finish();
        m_xml.writeStartElement(QStringLiteral("g"));
        m_xml.writeAttributes(style);
        m_style = style;
    }
    m_xml.writeStartElement(QString::fromLatin1(name));
}

void SvgEngine::writePoints(const QPolygonF& points)
{
    QStringList pairs;
    for (const QPointF& point : points)
        pairs.append(pair(point));
    m_xml.writeAttribute(QStringLiteral("points"), pairs.join(QLatin1Char(' ')));
}

/// Corners are bevelled: the lines of a figure meet with flat ends.
QXmlStreamAttributes SvgEngine::stroke(const QString& fill) const
{
    QXmlStreamAttributes style;
    style.append(QStringLiteral("fill"), fill);
    if (m_pen.style() == Qt::NoPen)
        return style;
    addColor(style, QStringLiteral("stroke"), m_pen.color());
    style.append(QStringLiteral("stroke-width"), number(m_pen.widthF()));
    const bool isRound = m_pen.capStyle() == Qt::RoundCap;
    if (isRound)
        style.append(QStringLiteral("stroke-linecap"), QStringLiteral("round"));
    style.append(QStringLiteral("stroke-linejoin"),
                 isRound ? QStringLiteral("round") : QStringLiteral("bevel"));
    return style;
}

QXmlStreamAttributes SvgEngine::fillAndStroke() const
{
    if (m_brush.style() == Qt::NoBrush)
        return stroke(QStringLiteral("none"));
    QXmlStreamAttributes style = stroke(m_brush.color().name());
    if (m_brush.color().alpha() < 255)
        style.append(QStringLiteral("fill-opacity"), number(m_brush.color().alphaF()));
    return style;
}

QXmlStreamAttributes SvgEngine::textStyle(const QFont& font) const
{
    QXmlStreamAttributes style;
    addColor(style, QStringLiteral("fill"), m_pen.color());
    style.append(QStringLiteral("font-family"),
                 XmlText::writable(font.family()) + QLatin1String(", sans-serif"));
    style.append(QStringLiteral("font-size"), QString::number(font.pixelSize()));
    style.append(QStringLiteral("xml:space"), QStringLiteral("preserve"));
    return style;
}
