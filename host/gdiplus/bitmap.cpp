#include "host/gdiplus/bitmap.h"

#include "host/gdiplus/graphics.h"

#include <QImage>

#include <cmath>
#include <limits>

namespace Gdiplus
{

namespace
{

// As many as fit into an image's int-sized byte count.
constexpr qreal kMostPixels = std::numeric_limits<int>::max() / 4.0;

Status checkFormat(PixelFormat format)
{
    return format == PixelFormat32bppARGB || format == PixelFormat32bppPARGB ? Ok
                                                                             : InvalidParameter;
}

std::shared_ptr<QImage> makePixels(INT width, INT height, qreal pixelRatio)
{
    const qreal w = std::ceil(width * pixelRatio);
    const qreal h = std::ceil(height * pixelRatio);
    if (w < 1 || h < 1 || w * h > kMostPixels)
        return {};
    auto pixels = std::make_shared<QImage>(int(w), int(h), QImage::Format_ARGB32_Premultiplied);
    if (pixels->isNull())
        return {};
    pixels->setDevicePixelRatio(pixelRatio);
    pixels->fill(Qt::transparent);
    return pixels;
}

} // namespace

Bitmap::Bitmap(INT width, INT height, PixelFormat format)
    : Bitmap(width, height, 1, checkFormat(format))
{
}

Bitmap::Bitmap(INT width, INT height, Graphics* target)
    : Bitmap(width, height, target ? target->pixelRatio() : 1, target ? Ok : InvalidParameter)
{
}

Bitmap::Bitmap(INT width, INT height, qreal pixelRatio, Status status)
    : Image(status == Ok ? makePixels(width, height, pixelRatio) : nullptr, UINT(qMax(0, width)),
            UINT(qMax(0, height)), status)
{
}

} // namespace Gdiplus
