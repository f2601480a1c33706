#pragma once

#include "host/packetqueue.h"
#include "host/picturescaler.h"
#include "host/playoutclock.h"
#include "host/streaminput.h"

#include <memory>

namespace UICommonMdl
{

class StreamMailbox;

/**
 * Plays one stream or file into a mailbox until that is closed or the stream is over: reads on one
 * thread, decodes, keeps the time and scales on another. A file is played over and over.
 */
class StreamDecoder
{
public:
    /// Plays on threads of its own, and posts at the end why it is over. Returns at once.
    static void launch(const StreamRequest& request, const std::shared_ptr<StreamMailbox>& mailbox);

private:
    using Time = PlayoutClock::Time;
    class Reader;

    StreamDecoder(const StreamRequest& request, StreamMailbox& mailbox);

    // Each returns why the stream is over, empty while it goes on.
    QString play();
    QString openCodec();
    QString decodePackets();
    QString decode(const AVPacket* packet);
    QString show(AvFramePointer frame);
    QString startOver();

    void readPackets();
    int passOnPacket(); ///< below 0 when no more come
    int readOrRewind(AvPacketPointer& packet);
    PlayoutClock::Duration mediaTime(const AVFrame& frame);
    bool isTooLate(Time due) const;

    const StreamRequest m_request;
    StreamMailbox& m_mailbox;
    StreamInput m_input;
    PacketQueue m_queue;
    AvCodecPointer m_codec;
    PictureScaler m_scaler;
    PlayoutClock m_clock;
    PlayoutClock::Duration m_period; ///< from one picture to the next
    PlayoutClock::Duration m_media{};
    Time m_due;
    Time m_lastDecoded;
    Time m_lastShown;
    int m_decoded = 0; ///< since the stream was started over
};

} // namespace UICommonMdl
