#pragma once

namespace UICommonMdl
{

/// How a stream is to be fetched and shown.
struct StreamOptions {
    bool udp = false;  ///< ask for UDP first; otherwise TCP is first
    int delayTime = 0; ///< jitter buffer in milliseconds
};

} // namespace UICommonMdl
