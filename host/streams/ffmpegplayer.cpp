#include "host/streams/ffmpegplayer.h"

#include "host/streams/streamdecoder.h"
#include "host/streams/streamerrors.h"

#include <exception>

namespace UICommonMdl
{

QString FfmpegPlayer::play(const StreamRequest& request, StreamMailbox& mailbox)
{
    try {
        return StreamDecoder(request, mailbox).play();
    } catch (const std::exception&) {
        return streamErrorText(AVERROR(ENOMEM));
    }
}

} // namespace UICommonMdl
