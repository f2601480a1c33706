#pragma once

#include "host/streams/avpointers.h"
#include "host/streams/namedpipe.h"
#include "host/video/streamaddress.h"
#include "host/video/streamrequest.h"

#include <atomic>
#include <chrono>
#include <optional>

namespace UICommonMdl
{

class PictureWatch;
class StreamMailbox;

/**
 * The reading end of a stream or video file: connects, and hands over the packets of its video.
 * Every call that waits is given up when the mailbox is closed, on abort(), and when a server
 * lets a picture wait for too long. A server that sends its clients to another one is not followed
 * where a login would go along. Used on one thread at a time, abort() apart.
 */
class StreamInput
{
public:
    /// @p mailbox and @p watch must outlive the input. A file may take its time.
    StreamInput(const StreamRequest& request, StreamMailbox& mailbox, const PictureWatch& watch);
    /// Says goodbye to the server, which takes a moment at most.
    ~StreamInput();

    /// Why it cannot be played, empty when it was opened.
    QString open();
    /// The next packet of the video; below 0 when there is none.
    int read(AVPacket& packet);
    /// To the first picture again; below 0 when that cannot be done.
    int rewind();
    void abort();

    /// Valid once opened.
    const AVStream& video() const;
    double picturesPerSecond() const;

private:
    using Clock = std::chrono::steady_clock;

    static int isInterrupted(void* input);
    bool isSentElsewhere() const;
    bool isOverdue() const;
    bool needsAnalysis() const;
    int explained(int code) const;
    int connectToServer();
    int openPipe();
    QString failureText(int code);
    QString findVideo();

    const StreamRequest m_request;
    StreamMailbox& m_mailbox;
    const PictureWatch& m_watch;
    const StreamAddress m_address;
    NamedPipe m_pipe;                           ///< what m_format may read
    const AVFormatContext* m_opening = nullptr; ///< not owned; null once opened
    bool m_isAstray = false;
    AvFormatPointer m_format;
    int m_video = -1;
    bool m_isClosing = false;
    std::optional<Clock::time_point> m_until; ///< in place of what the watch says
    std::atomic<bool> m_aborted{false};
};

} // namespace UICommonMdl
