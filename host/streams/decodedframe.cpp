#include "host/streams/decodedframe.h"

#include "host/streams/picturescaler.h"

#include <utility>

namespace UICommonMdl
{

DecodedFrame::DecodedFrame(AvFramePointer frame) : m_frame(std::move(frame)) {}

QSize DecodedFrame::size() const
{
    return {m_frame->width, m_frame->height};
}

QImage DecodedFrame::image() const
{
    return PictureScaler().convert(*m_frame, size());
}

} // namespace UICommonMdl
