#include "host/gdiplus/image.h"

#include <QImage>

#include <utility>

namespace Gdiplus
{

Image::~Image() = default;

Image::Image(std::shared_ptr<QImage> pixels, UINT width, UINT height, Status status)
    : m_pixels(std::move(pixels)),
      m_width(width),
      m_height(height),
      m_status(m_pixels || status != Ok ? status : OutOfMemory)
{
}

} // namespace Gdiplus
