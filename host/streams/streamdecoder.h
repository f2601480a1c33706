#pragma once

#include "host/streams/packetqueue.h"
#include "host/streams/picturescaler.h"
#include "host/streams/pictureshape.h"
#include "host/streams/streaminput.h"
#include "host/video/picturewatch.h"
#include "host/video/playoutclock.h"

namespace UICommonMdl
{

class StreamMailbox;

/**
 * Plays one stream or file into a mailbox until that is closed or the stream is over: reads on one
 * thread of its own, decodes, keeps the time and scales on the caller's. A file is played over and
 * over.
 */
class StreamDecoder
{
public:
    /// @p mailbox must outlive the decoder.
    StreamDecoder(const StreamRequest& request, StreamMailbox& mailbox);

    /// Returns why it is over.
    QString play();

private:
    using Time = PlayoutClock::Time;

    // Each returns why the stream is over, empty while it goes on.
    QString openCodec();
    QString decodePackets();
    QString decode(const AVPacket* packet);
    QString show(AvFramePointer frame);
    QString startOver();
    QString endReason() const;

    void readPackets();
    int passOnPacket(); ///< below 0 when no more come
    int readOrRewind(AvPacketPointer& packet);
    PlayoutClock::Duration mediaTime(const AVFrame& frame);
    PictureShape shapeOf(const AVFrame& frame) const;
    bool isTooLate(Time due) const;

    const StreamRequest m_request;
    StreamMailbox& m_mailbox;
    PictureWatch m_watch;
    StreamInput m_input;
    PacketQueue m_queue;
    AvCodecPointer m_codec;
    PictureShape m_shape; ///< as the container tells it
    PictureScaler m_scaler;
    PlayoutClock m_clock;
    PlayoutClock::Duration m_period; ///< from one picture to the next
    PlayoutClock::Duration m_media{};
    Time m_due;
    Time m_lastPacket;
    Time m_lastShown;
    int m_decoded = 0; ///< since the stream was started over
};

} // namespace UICommonMdl
