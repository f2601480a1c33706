#pragma once

#include "host/streams/avpointers.h"
#include "host/streams/pictureshape.h"
#include "host/video/decodedpicture.h"

namespace UICommonMdl
{

class PictureScaler;

class DecodedFrame : public DecodedPicture
{
public:
    DecodedFrame(AvFramePointer frame, const PictureShape& shape);

    QSize size() const override;
    QSize shownSize() const override;
    QImage image() const override;
    /// Of @p size as it is shown; null when it cannot be converted.
    QImage scaled(PictureScaler& scaler, const QSize& size) const;

private:
    const AvFramePointer m_frame;
    const PictureShape m_shape;
};

} // namespace UICommonMdl
