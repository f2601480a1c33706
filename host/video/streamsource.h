#pragma once

#include "host/video/picturesource.h"
#include "host/video/streamrequest.h"

#include <QTimer>

#include <memory>

namespace UICommonMdl
{

class DecodedPicture;
class StreamMailbox;

/**
 * A live stream (RTSP, TCP or UDP) or a file: a still picture, or a video, which is played over and
 * over at its own speed. All opening, waiting, decoding and scaling is done on threads of its own.
 * A live stream that is lost is tried again after 1, 2, 4, ... up to 30 seconds, for ever, and says
 * when; a file is not, nor is a server that refuses the login. start() tries at once.
 */
class KQHOST_EXPORT StreamSource : public PictureSource
{
    Q_OBJECT

public:
    explicit StreamSource(const StreamRequest& request);
    ~StreamSource() override;

    void start() override;
    void stop() override;
    QImage picture() const override { return m_picture; }
    QSize pictureSize() const override;
    QSize shownSize() const override;
    QImage fullPicture() const override;
    void setTargetSize(const QSize& size) override;
    void setBounds(const QSize& bounds) override;
    PictureStatistics statistics() const override;

private slots:
    void sltConnect();
    void sltRetry();
    void sltNews();

private:
    void leave();
    void lose(const QString& reason);
    QString nextStep(bool isRefused);

    const StreamRequest m_request;
    std::shared_ptr<StreamMailbox> m_mailbox; ///< null while nothing is played
    QTimer m_retry;
    int m_wait;       ///< seconds until the next try
    QString m_reason; ///< why the stream was lost last
    QSize m_targetSize;
    QSize m_bounds;
    QImage m_picture;
    std::shared_ptr<const DecodedPicture> m_decoded; ///< the same picture
};

} // namespace UICommonMdl
