#pragma once

#include <QString>

namespace PreviewLogical
{

/// What is needed to play an RTSP address.
struct RtspVideoParam {
    QString channelId;
    int decodeType = 0;
    int playType = 0;
    int serverType = 0;
    int sessionId = 0;
    int streamMode = 0; ///< 0 TCP, 1 UDP
    int delayTime = 0;  ///< jitter buffer in milliseconds
    QString rtspUrl;    ///< may hold a password: shown and logged masked only
};

} // namespace PreviewLogical
