#include "host/streams/picturescaler.h"

#include <array>
#include <atomic>

namespace UICommonMdl
{
namespace
{

/// One is shown, one waits, one is written; the others are for those that others keep.
constexpr std::size_t kMostImages = 5;
/// Rows end on this boundary, as the fast conversions write past a row's last picture point.
constexpr int kRowBytes = 64;
constexpr int kBytesPerPixel = 4;
constexpr int kHighDefinitionHeight = 720;
constexpr int kUnity = 1 << 16;

/// The colour matrix; where the stream does not tell, what cameras of that height use.
int colorMatrix(const AVFrame& frame)
{
    if (frame.colorspace != AVCOL_SPC_UNSPECIFIED && frame.colorspace != AVCOL_SPC_RESERVED)
        return int(frame.colorspace);
    return frame.height >= kHighDefinitionHeight ? SWS_CS_ITU709 : SWS_CS_ITU601;
}

/// The older formats that imply the range are named like the others here.
AVPixelFormat plainFormat(const AVFrame& frame)
{
    switch (frame.format) {
    case AV_PIX_FMT_YUVJ420P:
        return AV_PIX_FMT_YUV420P;
    case AV_PIX_FMT_YUVJ422P:
        return AV_PIX_FMT_YUV422P;
    default:
        return AVPixelFormat(frame.format);
    }
}

bool isFullRange(const AVFrame& frame)
{
    return frame.color_range == AVCOL_RANGE_JPEG || plainFormat(frame) != frame.format;
}

/// Formats with a fast conversion to RGB.
bool isFast(AVPixelFormat format)
{
    return format == AV_PIX_FMT_YUV420P || format == AV_PIX_FMT_YUV422P;
}

int even(int extent)
{
    return (extent + 1) / 2 * 2;
}

QSize evenSize(const QSize& size)
{
    return {even(size.width()), even(size.height())};
}

AvScalerPointer newScaler(const QSize& from, AVPixelFormat format, const QSize& to,
                          AVPixelFormat wanted)
{
    return AvScalerPointer(sws_getContext(from.width(), from.height(), format, to.width(),
                                          to.height(), wanted, SWS_BILINEAR, nullptr, nullptr,
                                          nullptr));
}

/// With room for one row more.
QImage newImage(const QSize& size)
{
    const int rowBytes = (size.width() * kBytesPerPixel + kRowBytes - 1) / kRowBytes * kRowBytes;
    auto* const bytes =
        static_cast<uchar*>(av_malloc(std::size_t(rowBytes) * std::size_t(even(size.height()))));
    if (!bytes)
        return {};
    return {bytes, size.width(), size.height(), rowBytes, QImage::Format_RGB32, &av_free, bytes};
}

} // namespace

bool PictureScaler::Conversion::operator==(const Conversion& other) const
{
    return from == other.from && format == other.format && colors == other.colors &&
           fullRange == other.fullRange && to == other.to;
}

QImage PictureScaler::convert(const AVFrame& frame, const QSize& size)
{
    const QSize own(frame.width, frame.height);
    const QSize wanted = size.isEmpty() ? own : size;
    if (!prepare({own, plainFormat(frame), colorMatrix(frame), isFullRange(frame), wanted}))
        return {};
    QImage& image = freeImage(wanted);
    if (image.isNull())
        return {};
    const AVFrame* from = &frame;
    if (m_shrinker) {
        sws_scale(m_shrinker.get(), frame.data, frame.linesize, 0, frame.height, m_shrunk->data,
                  m_shrunk->linesize);
        from = m_shrunk.get();
    }
    const std::array<uint8_t*, 4> target{image.bits(), nullptr, nullptr, nullptr};
    const std::array<int, 4> targetRow{int(image.bytesPerLine()), 0, 0, 0};
    sws_scale(m_converter.get(), from->data, from->linesize, 0, from->height, target.data(),
              targetRow.data());
    return image;
}

/**
 * Scaling and conversion to RGB in one go is several times as slow as one after the other. The
 * fast conversion wants even sizes: a row or column more than is shown is then written.
 */
bool PictureScaler::prepare(const Conversion& conversion)
{
    if (m_converter && conversion == m_conversion)
        return true;
    m_conversion = conversion;
    m_shrinker.reset();
    QSize from = conversion.from;
    QSize to = conversion.to;
    if (isFast(conversion.format) && from != to) {
        to = evenSize(to);
        if (from != to && !prepareShrinking(conversion, to))
            return false;
        from = to;
    }
    m_converter = newScaler(from, conversion.format, to, AV_PIX_FMT_RGB32);
    if (!m_converter)
        return false;
    const int* const matrix = sws_getCoefficients(conversion.colors);
    // Formats without such a matrix refuse it, and need none.
    sws_setColorspaceDetails(m_converter.get(), matrix, conversion.fullRange ? 1 : 0, matrix, 1, 0,
                             kUnity, kUnity);
    return true;
}

bool PictureScaler::prepareShrinking(const Conversion& conversion, const QSize& size)
{
    m_shrinker = newScaler(conversion.from, conversion.format, size, conversion.format);
    m_shrunk.reset(av_frame_alloc());
    if (!m_shrinker || !m_shrunk)
        return false;
    m_shrunk->format = conversion.format;
    m_shrunk->width = size.width();
    m_shrunk->height = size.height();
    return av_frame_get_buffer(m_shrunk.get(), 0) >= 0;
}

QImage& PictureScaler::freeImage(const QSize& size)
{
    for (QImage& image : m_images) {
        if (!image.isDetached())
            continue;
        // What was read of it on another thread was read before it was let go.
        std::atomic_thread_fence(std::memory_order_acquire);
        if (image.size() != size)
            image = newImage(size);
        return image;
    }
    if (m_images.size() >= kMostImages)
        m_images.erase(m_images.begin());
    m_images.push_back(newImage(size));
    return m_images.back();
}

} // namespace UICommonMdl
