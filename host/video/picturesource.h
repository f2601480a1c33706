#pragma once

#include "host/api/kqhostexport.h"

#include <QDateTime>
#include <QImage>
#include <QObject>

#include <deque>

namespace UICommonMdl
{

enum class PictureState { Connecting, Playing, NoSignal, Ended };

/// What a picture source says about itself.
struct PictureStatus {
    PictureState state = PictureState::Connecting;
    QString reason;        ///< why there is no signal, for the operator
    QDateTime lastPicture; ///< when the last picture came; invalid when none ever did
};

/// Figures about a picture source, for the operator.
struct PictureStatistics {
    QString codec; ///< empty when nothing is decoded
    QSize size;
    double picturesPerSecond = 0; ///< of those that were shown lately
    qint64 dropped = 0;           ///< pictures that came but were not shown
};

/**
 * Where a video surface gets its pictures. It lives on the GUI thread and never makes it wait: a
 * source that decodes does so on a thread of its own and keeps only the newest finished picture
 * for picture(). A lost source keeps its last picture.
 */
class KQHOST_EXPORT PictureSource : public QObject
{
    Q_OBJECT

public:
    ~PictureSource() override;

    /// Called again on a lost source, it tries anew.
    virtual void start() = 0;
    /// Returns at once; no picture is announced afterwards.
    virtual void stop() = 0;

    /// The newest picture, null before the first one; its size may be the target size.
    virtual QImage picture() const = 0;
    /// Size of the picture as it was decoded, empty before the first one.
    virtual QSize pictureSize() const = 0;
    /// The size in which the picture has its shape: another one when its points are not square.
    virtual QSize shownSize() const { return pictureSize(); }
    /**
     * The size in device pixels at which the picture is shown. A source that can hands over the
     * pictures that follow in exactly this size; others leave the scaling to the surface.
     */
    virtual void setTargetSize(const QSize&) {}
    /// The device pixels that there are for a picture whose size nobody knows yet: from them a
    /// source that can finds the target size of its first picture.
    virtual void setBounds(const QSize&) {}

    /// The newest picture in its shown size; this may take a moment.
    virtual QImage fullPicture() const { return picture(); }
    virtual PictureStatistics statistics() const;
    /// Whether start() may help a lost source.
    virtual bool canTryAgain() const { return true; }

    PictureStatus status() const { return m_status; }

signals:
    /// A new picture() is there.
    void sgnPictureReady();
    void sgnStateChanged();

protected:
    /// Takes a new state; the time of the last picture is kept.
    void setState(PictureState state, const QString& reason = {});
    /// Notes the time and announces the new picture.
    void announcePicture();

private:
    PictureStatus m_status;
    std::deque<QDateTime> m_shown; ///< when each of the last pictures was announced
};

} // namespace UICommonMdl
