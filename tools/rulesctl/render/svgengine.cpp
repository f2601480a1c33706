#include "tools/rulesctl/render/svgengine.h"

#include "tools/rulesctl/render/xmltext.h"

#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QXmlStreamWriter>

#include <cmath>

namespace
{

/// To a hundredth of a pixel.
QString number(double value)
{
    const QString text = QString::number(std::round(value * 100) / 100, 'f', 2);
    QString shortened = text;
    while (shortened.endsWith(QLatin1Char('0')))
        shortened.chop(1);
    if (shortened.endsWith(QLatin1Char('.')))
        shortened.chop(1);
    return shortened == QLatin1String("-0") ? QStringLiteral("0") : shortened;
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

void writeColor(QXmlStreamWriter& xml, const QString& attribute, const QColor& color)
{
    xml.writeAttribute(attribute, color.name());
    if (color.alpha() < 255)
        xml.writeAttribute(attribute + QLatin1String("-opacity"), number(color.alphaF()));
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
    finishElement();
    return true;
}

void SvgEngine::updateState(const QPaintEngineState& now)
{
    const auto changed = now.state();
    if ((changed & DirtyPen) && m_pen != now.pen()) {
        finishElement();
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
            finishElement();
            m_line.append(line.p1());
        }
        m_line.append(line.p2());
    }
}

void SvgEngine::drawPath(const QPainterPath& path)
{
    finishElement();
    m_xml.writeEmptyElement(QStringLiteral("path"));
    m_xml.writeAttribute(QStringLiteral("d"), pathData(m_transform.map(path)));
    if (path.fillRule() == Qt::OddEvenFill)
        m_xml.writeAttribute(QStringLiteral("fill-rule"), QStringLiteral("evenodd"));
    writeFill();
    writeStroke();
}

void SvgEngine::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode)
{
    finishElement();
    QPolygonF polygon;
    for (int i = 0; i < count; ++i)
        polygon.append(m_transform.map(points[i]));
    const bool isOpen = mode == PolylineMode;
    m_xml.writeEmptyElement(isOpen ? QStringLiteral("polyline") : QStringLiteral("polygon"));
    writePoints(polygon);
    if (isOpen)
        m_xml.writeAttribute(QStringLiteral("fill"), QStringLiteral("none"));
    else
        writeFill();
    writeStroke();
}

void SvgEngine::drawTextItem(const QPointF& at, const QTextItem& text)
{
    finishElement();
    const QPointF place = m_transform.map(at);
    const double degrees =
        std::atan2(m_transform.m12(), m_transform.m11()) * 180 / 3.14159265358979323846;
    const QFont font = text.font();
    m_xml.writeStartElement(QStringLiteral("text"));
    m_xml.writeAttribute(QStringLiteral("x"), number(place.x()));
    m_xml.writeAttribute(QStringLiteral("y"), number(place.y()));
    if (number(degrees) != QLatin1String("0"))
        m_xml.writeAttribute(QStringLiteral("transform"),
                             QStringLiteral("rotate(%1 %2)").arg(number(degrees), pair(place)));
    m_xml.writeAttribute(QStringLiteral("font-family"),
                         XmlText::writable(font.family()) + QLatin1String(", sans-serif"));
    m_xml.writeAttribute(QStringLiteral("font-size"), QString::number(font.pixelSize()));
    writeColor(m_xml, QStringLiteral("fill"), m_pen.color());
    m_xml.writeAttribute(QStringLiteral("xml:space"), QStringLiteral("preserve"));
    m_xml.writeCharacters(XmlText::writable(text.text()));
    m_xml.writeEndElement();
}

void SvgEngine::finishElement()
{
    if (m_line.isEmpty())
        return;
    QPolygonF line;
    m_line.swap(line);
    if (line.size() == 2) {
        m_xml.writeEmptyElement(QStringLiteral("line"));
        m_xml.writeAttribute(QStringLiteral("x1"), number(line[0].x()));
        m_xml.writeAttribute(QStringLiteral("y1"), number(line[0].y()));
        m_xml.writeAttribute(QStringLiteral("x2"), number(line[1].x()));
        m_xml.writeAttribute(QStringLiteral("y2"), number(line[1].y()));
    } else {
        const bool isClosed = line.isClosed();
        if (isClosed)
            line.removeLast();
        m_xml.writeEmptyElement(isClosed ? QStringLiteral("polygon") : QStringLiteral("polyline"));
        writePoints(line);
        m_xml.writeAttribute(QStringLiteral("fill"), QStringLiteral("none"));
    }
    writeStroke();
}

void SvgEngine::writePoints(const QPolygonF& points)
{
    QStringList pairs;
    for (const QPointF& point : points)
        pairs.append(pair(point));
    m_xml.writeAttribute(QStringLiteral("points"), pairs.join(QLatin1Char(' ')));
}

/// Corners are bevelled: the lines of a figure meet with flat ends.
void SvgEngine::writeStroke()
{
    if (m_pen.style() == Qt::NoPen)
        return;
    writeColor(m_xml, QStringLiteral("stroke"), m_pen.color());
    m_xml.writeAttribute(QStringLiteral("stroke-width"), number(m_pen.widthF()));
    const bool isRound = m_pen.capStyle() == Qt::RoundCap;
    if (isRound)
        m_xml.writeAttribute(QStringLiteral("stroke-linecap"), QStringLiteral("round"));
    m_xml.writeAttribute(QStringLiteral("stroke-linejoin"),
                         isRound ? QStringLiteral("round") : QStringLiteral("bevel"));
}

void SvgEngine::writeFill()
{
    if (m_brush.style() == Qt::NoBrush)
        m_xml.writeAttribute(QStringLiteral("fill"), QStringLiteral("none"));
    else
        writeColor(m_xml, QStringLiteral("fill"), m_brush.color());
}
