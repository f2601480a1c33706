#pragma once

#include "host/streams/avpointers.h"

#include <QImage>

#include <vector>

namespace UICommonMdl
{

/// Turns decoded pictures into images of a size. Images that are no longer shown are used again.
class PictureScaler
{
public:
    /// In the picture's own size when @p size is empty; null when it cannot be converted.
    QImage convert(const AVFrame& frame, const QSize& size);

private:
    /// All that a conversion depends on.
    struct Conversion {
        QSize from;
        AVPixelFormat format;
        int colors;
        bool fullRange;
        QSize to;

        bool operator==(const Conversion& other) const;
    };

    bool prepare(const Conversion& conversion);
    bool prepareShrinking(const Conversion& conversion, const QSize& size);
    QImage& freeImage(const QSize& size);

    AvScalerPointer m_shrinker; ///< to another size in the same format; null when not needed
    AvFramePointer m_shrunk;
    AvScalerPointer m_converter;
    Conversion m_conversion{};
    std::vector<QImage> m_images;
};

} // namespace UICommonMdl
