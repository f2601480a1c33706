#pragma once

#include "host/streamoptions.h"

#include <QString>

#include <chrono>

namespace UICommonMdl
{

/// What a stream's thread is asked to play.
struct StreamRequest {
    QString address; ///< an RTSP address, or the path of a video file
    bool isFile = false;
    StreamOptions options;
    /// A server from which nothing comes for this long is given up.
    std::chrono::milliseconds silenceLimit{10000};
};

} // namespace UICommonMdl
