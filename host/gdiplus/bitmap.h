#pragma once

#include "host/gdiplus/image.h"

#include <QtGlobal>

namespace Gdiplus
{

class Graphics;

/// Pixels with alpha, transparent at first, always kept premultiplied. Without an area or memory
/// for it, GetLastStatus() tells and nothing can be painted.
class KQHOST_EXPORT Bitmap : public Image
{
public:
    Bitmap(INT width, INT height, PixelFormat format = PixelFormat32bppARGB);
    /// Has the resolution of @p target, so that painting it there keeps every pixel.
    Bitmap(INT width, INT height, Graphics* target);

private:
    Bitmap(INT width, INT height, qreal pixelRatio, Status status);
};

} // namespace Gdiplus
