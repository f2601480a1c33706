#include "host/streams/decodedframe.h"

#include "host/streams/picturescaler.h"

#include <utility>

namespace UICommonMdl
{

DecodedFrame::DecodedFrame(AvFramePointer frame, const PictureShape& shape)
    : m_frame(std::move(frame)), m_shape(shape)
{
}

QSize DecodedFrame::size() const
{
    return m_shape.turned({m_frame->width, m_frame->height});
}

QSize DecodedFrame::shownSize() const
{
    return m_shape.shown({m_frame->width, m_frame->height});
}

QImage DecodedFrame::image() const
{
    PictureScaler scaler;
    return scaled(scaler, shownSize());
}

QImage DecodedFrame::scaled(PictureScaler& scaler, const QSize& size) const
{
    const QImage image = scaler.convert(*m_frame, m_shape.turned(size));
    return m_shape.turn.isIdentity() ? image : image.transformed(m_shape.turn);
}

} // namespace UICommonMdl
