#pragma once

#include "host/video/streamplayer.h"

#include <QObject>

namespace UICommonMdl
{

/// Plays with FFmpeg's libraries; what this library hands to the host.
class FfmpegPlayer : public QObject, public StreamPlayer
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID StreamPlayer_iid)
    Q_INTERFACES(UICommonMdl::StreamPlayer)

public:
    QString play(const StreamRequest& request, StreamMailbox& mailbox) override;
};

} // namespace UICommonMdl
