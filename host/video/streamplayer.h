#pragma once

#include <QString>
#include <QtPlugin>

namespace UICommonMdl
{

class StreamMailbox;
struct StreamRequest;

/// What the library of streams offers. Used on any thread.
class StreamPlayer
{
public:
    StreamPlayer() = default;
    virtual ~StreamPlayer() = default;
    StreamPlayer(const StreamPlayer&) = delete;
    StreamPlayer& operator=(const StreamPlayer&) = delete;

    /// Plays into @p mailbox, on the caller's thread, until that is closed or the stream is over;
    /// returns why it is over. Does not throw.
    virtual QString play(const StreamRequest& request, StreamMailbox& mailbox) = 0;
};

} // namespace UICommonMdl

#define StreamPlayer_iid "UICommonMdl.StreamPlayer/1"
Q_DECLARE_INTERFACE(UICommonMdl::StreamPlayer, StreamPlayer_iid)
