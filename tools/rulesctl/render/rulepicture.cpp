#include "tools/rulesctl/render/rulepicture.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleparser.h"
#include "draw/basedraw.h"
#include "draw/drawscene.h"
#include "draw/figurelayer.h"
#include "host/gdiplus.h"
#include "tools/rulesctl/render/svgdevice.h"
#include "tools/rulesctl/render/xmltext.h"

#include <QPainter>
#include <QXmlStreamWriter>

namespace
{

constexpr PaintedFigure::Part kParts[] = {PaintedFigure::Bands, PaintedFigure::Casings,
                                          PaintedFigure::Strokes};

QString pixels(int count)
{
    return QString::number(count);
}

void writeGround(const Ground& ground, const QString& picture, QXmlStreamWriter& xml)
{
    if (picture.startsWith(QLatin1Char('#')))
        xml.writeEmptyElement(QStringLiteral("use"));
    else
        xml.writeEmptyElement(picture.isEmpty() ? QStringLiteral("rect") : QStringLiteral("image"));
    xml.writeAttribute(QStringLiteral("width"), pixels(ground.size.width()));
    xml.writeAttribute(QStringLiteral("height"), pixels(ground.size.height()));
    if (picture.isEmpty())
        xml.writeAttribute(QStringLiteral("fill"), QStringLiteral("#000"));
    else
        xml.writeAttribute(QStringLiteral("xlink:href"), picture);
}

} // namespace

RulePicture::RulePicture(const RuleParser& scenes, const QString& scene, const Ground& ground)
    : m_ground(ground)
{
    for (const auto& data : scenes.getAllData()) {
        if (!scene.isEmpty() && data->getTemplate()->name() != scene)
            continue;
        DrawScene& canvas = *data->getDrawScene();
        canvas.setCanvasSize(ground.size.width(), ground.size.height());
        Scene shown;
        for (const DrawItem* item : canvas.getItemList(BaseDrawType::None, 0)) {
            if (item->figure())
                shown.push_back(
                    {{item->figure()},
                     mark(data->getTemplate()->name(), data->indexOf(item->dataId()) + 1),
                     item->label()});
        }
        m_scenes.push_back(std::move(shown));
    }
}

QString RulePicture::mark(const QString& scene, int number)
{
    return scene + QLatin1Char('-') + QString::number(number);
}

void RulePicture::emphasise(const QSet<QString>& marks)
{
    for (Scene& scene : m_scenes) {
        for (Shown& shown : scene)
            shown.painted.look =
                marks.contains(shown.mark) ? PaintedFigure::Emphasised : PaintedFigure::Plain;
    }
}

QImage RulePicture::toImage() const
{
    QImage image(m_ground.size, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.drawImage(0, 0, m_ground.picture);
    Gdiplus::Graphics graphics(&painter);
    FigureLayer::setQuality(graphics);
    for (const Scene& scene : m_scenes) {
        std::vector<PaintedFigure> figures;
        for (const Shown& shown : scene)
            figures.push_back(shown.painted);
        PaintedFigure::paint(graphics, figures,
                             PaintedFigure::Bands | PaintedFigure::Casings |
                                 PaintedFigure::Strokes);
    }
    return image;
}

QByteArray RulePicture::toSvg() const
{
    QByteArray svg;
    QXmlStreamWriter xml(&svg);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    writeSvg(xml, QString::fromLatin1(m_ground.dataUrl));
    xml.writeEndDocument();
    return svg;
}

void RulePicture::writeSvg(QXmlStreamWriter& xml, const QString& picture) const
{
    const QString width = pixels(m_ground.size.width());
    const QString height = pixels(m_ground.size.height());
    xml.writeStartElement(QStringLiteral("svg"));
    xml.writeAttribute(QStringLiteral("xmlns"), QStringLiteral("http://www.w3.org/2000/svg"));
    xml.writeAttribute(QStringLiteral("xmlns:xlink"),
                       QStringLiteral("http://www.w3.org/1999/xlink"));
    xml.writeAttribute(QStringLiteral("width"), width);
    xml.writeAttribute(QStringLiteral("height"), height);
    xml.writeAttribute(QStringLiteral("viewBox"),
                       QStringLiteral("0 0 ") + width + QLatin1Char(' ') + height);
    writeGround(m_ground, picture, xml);
    for (const Scene& scene : m_scenes)
        writeFigures(scene, xml);
    xml.writeEndElement();
}

/// In the order in which they are painted together: each part of all before the next.
void RulePicture::writeFigures(const Scene& scene, QXmlStreamWriter& xml) const
{
    SvgDevice device(m_ground.size, xml);
    QPainter painter(&device);
    Gdiplus::Graphics graphics(&painter);
    for (const PaintedFigure::Part part : kParts) {
        for (const Shown& shown : scene) {
            if (part == PaintedFigure::Bands && shown.painted.look == PaintedFigure::Plain)
                continue;
            xml.writeStartElement(QStringLiteral("g"));
            xml.writeAttribute(QStringLiteral("data-entry"), shown.mark);
            if (part == PaintedFigure::Strokes)
                xml.writeTextElement(QStringLiteral("title"), XmlText::writable(shown.name));
            PaintedFigure::paint(graphics, {shown.painted}, part);
            device.finish();
            xml.writeEndElement();
        }
    }
}
