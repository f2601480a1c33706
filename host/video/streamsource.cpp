#include "host/video/streamsource.h"

#include "host/api/dprintlog.h"
#include "host/video/decodedpicture.h"
#include "host/video/maskedaddress.h"
#include "host/video/picturefile.h"
#include "host/video/streamlibrary.h"
#include "host/video/streammailbox.h"
#include "host/video/streamplayer.h"
#include "host/video/streamthreads.h"

#include <QPointer>

namespace UICommonMdl
{
namespace
{

constexpr int kFirstWait = 1;
constexpr int kLongestWait = 30;
constexpr int kMillisecondsPerSecond = 1000;
constexpr int kLogLevel = 2;

/// What a file is can only be told by opening it, which may take as long as the system likes.
QString play(const StreamRequest& request, StreamMailbox& mailbox)
{
    if (request.isFile && isStillPicture(request.address))
        return showStillPicture(request.address, mailbox);
    StreamPlayer* const player = StreamLibrary::player();
    return player ? player->play(request, mailbox) : StreamLibrary::missingText();
}

} // namespace

StreamSource::StreamSource(const StreamRequest& request) : m_request(request), m_wait(kFirstWait)
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &StreamSource::sltRetry);
}

StreamSource::~StreamSource()
{
    leave();
}

void StreamSource::start()
{
    m_wait = kFirstWait;
    setState(PictureState::Connecting);
    sltConnect();
}

void StreamSource::stop()
{
    leave();
    setState(PictureState::Ended);
}

QSize StreamSource::pictureSize() const
{
    return m_decoded ? m_decoded->size() : QSize();
}

QSize StreamSource::shownSize() const
{
    return m_decoded ? m_decoded->shownSize() : QSize();
}

QImage StreamSource::fullPicture() const
{
    return m_decoded ? m_decoded->image() : QImage();
}

void StreamSource::setTargetSize(const QSize& size)
{
    m_targetSize = size;
    if (m_mailbox)
        m_mailbox->setTargetSize(size);
}

void StreamSource::setBounds(const QSize& bounds)
{
    m_bounds = bounds;
    if (m_mailbox)
        m_mailbox->setBounds(bounds);
}

PictureStatistics StreamSource::statistics() const
{
    PictureStatistics statistics = PictureSource::statistics();
    if (m_mailbox) {
        statistics.codec = m_mailbox->codec();
        statistics.dropped = m_mailbox->dropped();
    }
    return statistics;
}

void StreamSource::sltConnect()
{
    leave();
    m_mailbox = std::make_shared<StreamMailbox>([this]() {
        QMetaObject::invokeMethod(this, &StreamSource::sltNews, Qt::QueuedConnection);
    });
    m_mailbox->setTargetSize(m_targetSize);
    m_mailbox->setBounds(m_bounds);
    const bool started = StreamThreads::start([request = m_request, mailbox = m_mailbox]() {
        mailbox->postFailure(play(request, *mailbox));
    });
    if (!started)
        m_mailbox->postFailure(tr("There is not enough memory."));
}

void StreamSource::sltRetry()
{
    sltConnect();
    setState(PictureState::NoSignal, m_reason + QLatin1Char('\n') + tr("Trying again ..."));
}

void StreamSource::sltNews()
{
    if (!m_mailbox)
        return;
    const QPointer<StreamSource> guard(this);
    const StreamNews news = m_mailbox->fetch();
    if (!news.picture.isNull()) {
        m_wait = kFirstWait;
        const bool isNew = m_decoded != news.decoded;
        m_picture = news.picture;
        m_decoded = news.decoded;
        setState(PictureState::Playing);
        if (isNew)
            announcePicture();
        else
            emit sgnPictureReady();
    }
    // Whoever heard of the picture may have stopped or deleted this source.
    if (guard && news.failure && m_mailbox)
        lose(*news.failure);
}

/// Its threads end by themselves, and are not heard of any more.
void StreamSource::leave()
{
    m_retry.stop();
    if (!m_mailbox)
        return;
    m_mailbox->close();
    m_mailbox.reset();
}

void StreamSource::lose(const QString& reason)
{
    const bool isRefused = m_mailbox->isLoginRefused();
    leave();
    m_reason = reason;
    kql::DPrintLog::instance()->Log("host", kLogLevel, "StreamSource::lose", __FILE__, __LINE__,
                                    "%s: %s", maskedAddress(m_request.address), reason);
    // A file does not get better; a camera may come back.
    setState(PictureState::NoSignal,
             m_request.isFile ? reason : reason + QLatin1Char('\n') + nextStep(isRefused));
}

/// Waits for the next try, unless it would cost the user the account; says which.
QString StreamSource::nextStep(bool isRefused)
{
    if (isRefused)
        return tr("It is tried again only when you ask for it.");
    const QTime time = QTime::currentTime().addSecs(m_wait);
    m_retry.start(m_wait * kMillisecondsPerSecond);
    m_wait = qMin(2 * m_wait, kLongestWait);
    return tr("Next try at %1").arg(time.toString(QStringLiteral("HH:mm:ss")));
}

} // namespace UICommonMdl
