#pragma once

#include "host/decodedpicture.h"
#include "host/streams/avpointers.h"

namespace UICommonMdl
{

class DecodedFrame : public DecodedPicture
{
public:
    explicit DecodedFrame(AvFramePointer frame);

    QSize size() const override;
    QImage image() const override;

private:
    const AvFramePointer m_frame;
};

} // namespace UICommonMdl
