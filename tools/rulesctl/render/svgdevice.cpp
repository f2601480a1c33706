#include "tools/rulesctl/render/svgdevice.h"

#include "tools/rulesctl/render/svgengine.h"

#include <limits>

namespace
{

constexpr int kDotsPerInch = 96;
constexpr double kMillimetresPerInch = 25.4;

int inMillimetres(int pixels)
{
    return qRound(pixels * kMillimetresPerInch / kDotsPerInch);
}

} // namespace

SvgDevice::SvgDevice(const QSize& size, QXmlStreamWriter& xml)
    : m_size(size), m_engine(std::make_unique<SvgEngine>(xml))
{
}

SvgDevice::~SvgDevice() = default;

QPaintEngine* SvgDevice::paintEngine() const
{
    return m_engine.get();
}

void SvgDevice::finish()
{
    m_engine->finish();
}

int SvgDevice::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return m_size.width();
    case PdmHeight:
        return m_size.height();
    case PdmWidthMM:
        return inMillimetres(m_size.width());
    case PdmHeightMM:
        return inMillimetres(m_size.height());
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return kDotsPerInch;
    case PdmNumColors:
        return std::numeric_limits<int>::max();
    case PdmDepth:
        return 32;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return int(devicePixelRatioFScale());
    default:
        return QPaintDevice::metric(metric);
    }
}
