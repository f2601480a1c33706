#pragma once

#include <QPaintDevice>
#include <QSize>
#include <memory>

class QXmlStreamWriter;
class SvgEngine;

/**
 * Writes what a painter paints on it as elements of SVG: lines that go on from each other as one
 * polyline or polygon, paths and texts. Coordinates are the painter's device pixels. Text keeps its
 * font; pictures are left out.
 */
class SvgDevice : public QPaintDevice
{
public:
    /// @p xml stands inside of the element that takes them; it must outlive this. Not owned.
    SvgDevice(const QSize& size, QXmlStreamWriter& xml);
    ~SvgDevice() override;

    QPaintEngine* paintEngine() const override;
    /// Writes what is still held back, before something else goes to the writer.
    void finish();

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    QSize m_size;
    std::unique_ptr<SvgEngine> m_engine;
};
