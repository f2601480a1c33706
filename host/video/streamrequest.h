#pragma once

#include "host/video/streamoptions.h"

#include <QString>

#include <chrono>

namespace UICommonMdl
{

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
