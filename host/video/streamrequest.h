#pragma once

#include <QString>

#include <chrono>

namespace UICommonMdl
{

/// How a stream is to be fetched and shown.
struct StreamOptions {
    bool udp = false;  ///< ask for UDP first; otherwise TCP is first
    int delayTime = 0; ///< jitter buffer in milliseconds
};

/// What a stream's thread is asked to play.
struct StreamRequest {
    QString address; ///< an RTSP address, or the path of a picture or video file
    bool isFile = false;
    StreamOptions options;
    /// A server from which no picture comes for this long is given up, see PictureWatch.
    std::chrono::milliseconds silenceLimit{10000};
    /// The same until the first picture.
    std::chrono::milliseconds firstPictureLimit{30000};
};

} // namespace UICommonMdl
