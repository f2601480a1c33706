#pragma once

#include "host/picturesource.h"
#include "host/streamrequest.h"

#include <QTimer>

#include <memory>

namespace UICommonMdl
{

class DecodedPicture;
class StreamMailbox;

/**
 * A live stream (RTSP, TCP or UDP) or a video file, which is played over and over at its own speed.
 * All waiting, decoding and scaling is done on threads of its own. A live stream that is lost is
 * tried again after 1, 2, 4, ... up to 30 seconds, for ever; a file is not.
 */
class KQHOST_EXPORT StreamSource : public PictureSource
{
    Q_OBJECT

public:
    explicit StreamSource(const StreamRequest& request);
    ~StreamSource() override;

    void start() override;
    void stop() override;
    QImage picture() const override;
    QSize pictureSize() const override;
    QImage fullPicture() const override;
    void setTargetSize(const QSize& size) override;
    PictureStatistics statistics() const override;

private slots:
    void sltConnect();
    void sltNews();

private:
    void leave();
    void lose(const QString& reason);

    const StreamRequest m_request;
    std::shared_ptr<StreamMailbox> m_mailbox; ///< null while nothing is played
    QTimer m_retry;
    int m_wait; ///< seconds until the next try
    QSize m_targetSize;
    QImage m_picture;
    std::shared_ptr<const DecodedPicture> m_decoded; ///< the same picture
    QSize m_pictureSize;
};

} // namespace UICommonMdl
