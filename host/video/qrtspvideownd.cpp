#include "host/video/qrtspvideownd.h"

#include "host/api/kqmessagebox.h"
#include "host/api/limits.h"
#include "host/api/rtspvideoparam.h"
#include "host/video/channelsources.h"
#include "host/video/picturefile.h"
#include "host/video/picturesize.h"
#include "host/video/picturesource.h"
#include "host/video/picturestrip.h"

#include <QFileDialog>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>

#include <cmath>

using UICommonMdl::ChannelSources;
using UICommonMdl::PictureSource;
using UICommonMdl::PictureState;
using UICommonMdl::PictureStatus;
using UICommonMdl::PictureStrip;

namespace
{

constexpr QRgb kGround = 0xFF15191E;
constexpr QRgb kQuietText = 0xFF8D98A5;
constexpr QRgb kStrip = 0xB0101418;
constexpr QRgb kStripText = 0xFFE6EAEE;
constexpr int kTextMargin = 16;
constexpr int kStripMargin = 6;
constexpr int kStatusFlags = Qt::AlignCenter | Qt::TextWordWrap;
constexpr int kUdpMode = 1;

ChannelSources& channelSources()
{
    return KQGUI::KQSingleton<ChannelSources>::Instance();
}

QString noSignalText(const PictureStatus& status)
{
    QStringList lines{QRtspVideoWnd::tr("No signal")};
    if (!status.reason.isEmpty())
        lines.append(status.reason);
    if (status.lastPicture.isValid())
        lines.append(QRtspVideoWnd::tr("Last picture: %1")
                         .arg(QLocale().toString(status.lastPicture, QLocale::ShortFormat)));
    return lines.join(QLatin1Char('\n'));
}

/// The size in which to keep a picture that fills @p size pixels of the surface.
QSize keptSize(const QSizeF& size)
{
    const qreal pixels = size.width() * size.height();
    return (pixels <= Limits::kPixels ? size : size * std::sqrt(Limits::kPixels / pixels)).toSize();
}

/// Smooth scaling takes the longer the larger the picture is: one that is far too large is thinned
/// out first, as this is done while everything waits.
QImage scaledAtOnce(const QImage& image, const QSize& size)
{
    const QSize thinned = 2 * size;
    const bool isFarTooLarge = image.size().boundedTo(thinned) == thinned;
    const QImage from = isFarTooLarge
                            ? image.scaled(thinned, Qt::IgnoreAspectRatio, Qt::FastTransformation)
                            : image;
    return from.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QMouseEvent movedTo(const QPoint& place, QEvent::Type type, const QMouseEvent& event)
{
    return {type,           place,           event.windowPos(), event.screenPos(),
            event.button(), event.buttons(), event.modifiers()};
}

} // namespace

QRtspVideoWnd::QRtspVideoWnd(QWidget* parent, int)
    : QWidget(parent),
      m_strip(new PictureStrip(this,
                               [this]() {
                                   return m_source ? m_source->statistics()
                                                   : UICommonMdl::PictureStatistics();
                               })),
      m_tryAgain(new QPushButton(tr("Try again now"), this))
{
    m_tryAgain->setObjectName(QStringLiteral("tryAgain"));
    m_tryAgain->setFocusPolicy(Qt::TabFocus);
    m_tryAgain->setCursor(Qt::ArrowCursor);
    m_tryAgain->hide();
    connect(m_tryAgain, &QPushButton::clicked, this, &QRtspVideoWnd::tryAgain);
    connect(m_strip, &PictureStrip::sgnFreeze, this, &QRtspVideoWnd::setFrozen);
    connect(m_strip, &PictureStrip::sgnSnapshot, this, &QRtspVideoWnd::sltSaveSnapshot);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // The right button draws.
    setContextMenuPolicy(Qt::PreventContextMenu);
    connect(&channelSources(), &ChannelSources::sgnAddressesChanged, this,
            &QRtspVideoWnd::sltAddressesChanged);
}

QRtspVideoWnd::~QRtspVideoWnd()
{
    if (!m_source)
        return;
    m_source->disconnect(this);
    m_source->stop();
}

void QRtspVideoWnd::setDrawEnabled(bool enabled)
{
    m_drawEnabled = enabled;
    update();
}

void QRtspVideoWnd::registerDrawCallback(DrawCallback callback, void* user)
{
    m_drawCallback = callback;
    m_drawUser = user;
    update();
}

void QRtspVideoWnd::registerVideoSizeCallback(VideoSizeCallback callback, void* user)
{
    m_sizeCallback = callback;
    m_sizeUser = user;
    m_reportedSize = QSize();
    reportVideoSize();
}

bool QRtspVideoWnd::openLivePicture(const QString& channelId, int pane)
{
    if (pane != selectedPane())
        return false;
    m_opened = Opened::Channel;
    m_channelId = channelId;
    openAddress(channelSources().address(channelId), {});
    return true;
}

bool QRtspVideoWnd::openByRtsp(const PreviewLogical::RtspVideoParam& param)
{
    m_opened = Opened::Rtsp;
    m_sessionId = param.sessionId;
    m_playType = param.playType;
    const QPointer<QRtspVideoWnd> guard(this);
    openAddress(param.rtspUrl, {param.streamMode == kUdpMode, param.delayTime});
    return guard && m_source && m_source->status().state != PictureState::NoSignal;
}

void QRtspVideoWnd::closeRtsp(int sessionId, int playType)
{
    if (m_opened == Opened::Rtsp && m_sessionId == sessionId && m_playType == playType)
        closeSource();
}

void QRtspVideoWnd::resetToolBar(int pane)
{
    if (pane == selectedPane())
        closeSource();
}

QRect QRtspVideoWnd::paneRect(int pane) const
{
    if (pane != selectedPane() || !m_source)
        return {};
    return UICommonMdl::letterboxed(shownSize(), rect());
}

QString QRtspVideoWnd::statusText() const
{
    if (!m_source)
        return tr("No picture");
    const PictureStatus status = m_source->status();
    switch (status.state) {
    case PictureState::Connecting:
        return tr("Connecting ...");
    case PictureState::Playing:
        return isFrozen() ? tr("The picture is held still") : QString();
    case PictureState::NoSignal:
        return noSignalText(status);
    case PictureState::Ended:
        return tr("Ended");
    }
    return {};
}

bool QRtspVideoWnd::isLost() const
{
    return m_source && m_source->status().state == PictureState::NoSignal &&
           m_source->canTryAgain();
}

void QRtspVideoWnd::tryAgain()
{
    if (isLost())
        m_source->start();
}

void QRtspVideoWnd::setFrozen(bool frozen)
{
    const QImage picture = frozen && m_source ? m_source->fullPicture() : QImage();
    m_still = picture.isNull() ? std::nullopt : std::optional<QImage>(picture);
    m_strip->setFrozen(isFrozen());
    m_pixmap = QPixmap();
    followPictureRect();
    reportVideoSize();
    update();
}

QImage QRtspVideoWnd::snapshot() const
{
    if (m_still)
        return *m_still;
    return m_source ? m_source->fullPicture() : QImage();
}

QSize QRtspVideoWnd::shownSize() const
{
    return m_still ? m_still->size() : m_source->shownSize();
}

void QRtspVideoWnd::openAddress(const QString& address, const UICommonMdl::StreamOptions& options)
{
    const Opened opened = m_opened;
    closeSource();
    m_opened = opened;
    m_address = address;
    const QPointer<QRtspVideoWnd> guard(this);
    auto made = opened == Opened::Rtsp ? channelSources().makeForeignSource(address, options)
                                       : channelSources().makeSource(address, options);
    // Makers may run an event loop, in which something else was opened, closed or deleted.
    if (!guard || m_source || m_opened == Opened::Nothing)
        return;
    m_source = std::move(made);
    PictureSource* source = m_source.get();
    connect(source, &PictureSource::sgnPictureReady, this, &QRtspVideoWnd::sltPictureReady);
    connect(source, &PictureSource::sgnStateChanged, this, &QRtspVideoWnd::sltStateChanged);
    sltStateChanged();
    source->setBounds((QSizeF(size()) * devicePixelRatioF()).toSize());
    source->start();
}

void QRtspVideoWnd::closeSource()
{
    m_opened = Opened::Nothing;
    if (!m_source)
        return;
    m_source->disconnect(this);
    m_source->stop();
    // The call may come out of one of the source's own signals.
    m_source.release()->deleteLater();
    m_still.reset();
    m_strip->setFrozen(false);
    m_pixmap = QPixmap();
    m_reportedSize = QSize();
    sltStateChanged();
    followPictureRect();
}

void QRtspVideoWnd::sltPictureReady()
{
    if (isFrozen())
        return;
    m_pixmap = QPixmap();
    update(paneRect(selectedPane()));
    const QPointer<QRtspVideoWnd> guard(this);
    followPictureRect();
    if (guard)
        reportVideoSize();
}

void QRtspVideoWnd::sltStateChanged()
{
    // Not at once: the source is in the middle of something, and hiding a button moves the focus,
    // of which who hears may delete both.
    QMetaObject::invokeMethod(this, &QRtspVideoWnd::updateTryAgain, Qt::QueuedConnection);
    update();
}

void QRtspVideoWnd::sltAddressesChanged()
{
    if (m_opened == Opened::Channel && channelSources().address(m_channelId) != m_address)
        openLivePicture(m_channelId);
}

void QRtspVideoWnd::sltSaveSnapshot()
{
    const QImage picture = snapshot();
    const QPointer<QRtspVideoWnd> guard(this);
    const QString name =
        QDateTime::currentDateTime().toString(QStringLiteral("'snapshot'-yyyyMMdd-HHmmss'.png'"));
    const QString file = QFileDialog::getSaveFileName(this, tr("Save snapshot"), name,
                                                      tr("Pictures (*.png *.jpg *.bmp)"));
    QString error;
    if (!guard || file.isEmpty() || UICommonMdl::savePicture(picture, file, error))
        return;
    KQGUI::KQMessageBox::ShowError(this, tr("Save snapshot"),
                                   tr("The picture cannot be saved: %1").arg(error));
}

void QRtspVideoWnd::reportVideoSize()
{
    const QSize size = m_source ? m_source->pictureSize() : QSize();
    if (!m_sizeCallback || size.isEmpty() || size == m_reportedSize)
        return;
    m_reportedSize = size;
    m_sizeCallback(size.width(), size.height(), m_sizeUser);
}

/// Announces the picture rectangle when it is another than the one announced last.
void QRtspVideoWnd::followPictureRect()
{
    const QRect picture = paneRect(selectedPane());
    if (picture == m_rect)
        return;
    m_rect = picture;
    const QPointer<QRtspVideoWnd> guard(this);
    m_strip->setPictureRect(picture); // which may take the focus from it
    if (!guard)
        return;
    placeTryAgain();
    update();
    emit sgnPictureRectChanged(selectedPane());
}

void QRtspVideoWnd::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeTryAgain();
    followPictureRect();
}

void QRtspVideoWnd::mousePressEvent(QMouseEvent* event)
{
    const auto at = UICommonMdl::placeOn(paneRect(selectedPane()), event->pos());
    if (!at)
        return;
    QMouseEvent press = movedTo(*at, event->type(), *event);
    emit SignalMousePress(&press);
    emit sgnWndClick(selectedPane(), at->x(), at->y());
}

/// Its second press is none: two points on one spot are never meant.
void QRtspVideoWnd::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (const auto at = UICommonMdl::placeOn(paneRect(selectedPane()), event->pos()))
        emit sgnSWDbClicked(selectedPane(), at->x(), at->y());
}

void QRtspVideoWnd::mouseMoveEvent(QMouseEvent* event)
{
    const auto at = UICommonMdl::placeOn(paneRect(selectedPane()), event->pos());
    if (!at)
        return;
    QMouseEvent move = movedTo(*at, event->type(), *event);
    emit SignalMoveEvent(&move);
}

bool QRtspVideoWnd::event(QEvent* event)
{
    if (event->type() == QEvent::DynamicPropertyChange)
        m_tryAgain->setAttribute(Qt::WA_TransparentForMouseEvents, property("drawing").toBool());
    return QWidget::event(event);
}

void QRtspVideoWnd::paintEvent(QPaintEvent*)
{
    {
        QPainter painter(this);
        painter.fillRect(rect(), QColor::fromRgba(kGround));
        paintPicture(painter);
    }
    paintOver();
    QPainter painter(this);
    paintStatus(painter);
}

/// Scales once a picture and size; sources that know the size have done it already.
void QRtspVideoWnd::preparePixmap(const QRect& picture)
{
    const QSize size = keptSize(QSizeF(picture.size()) * devicePixelRatioF());
    if (m_pixmap.size() == size)
        return;
    m_source->setTargetSize(size);
    QImage image = m_still ? *m_still : m_source->picture();
    if (!image.isNull() && image.size() != size)
        image = scaledAtOnce(image, size);
    m_pixmap = QPixmap::fromImage(std::move(image));
}

void QRtspVideoWnd::paintPicture(QPainter& painter)
{
    const QRect picture = paneRect(selectedPane());
    if (picture.isEmpty())
        return;
    preparePixmap(picture);
    painter.drawPixmap(picture, m_pixmap);
}

/// A painter of its own, so that nothing the callback leaves behind stays.
void QRtspVideoWnd::paintOver()
{
    const QRect picture = paneRect(selectedPane());
    if (!m_drawEnabled || !m_drawCallback || picture.isEmpty())
        return;
    QPainter painter(this);
    painter.setClipRect(picture);
    painter.translate(picture.topLeft());
    m_drawCallback(static_cast<void*>(&painter), m_drawUser);
}

/// In the middle of an empty pane, else in a strip at the foot of the last picture.
QRect QRtspVideoWnd::statusRect() const
{
    const QRect picture = paneRect(selectedPane());
    const int margin = picture.isEmpty() ? kTextMargin : 0;
    const QRect area =
        (picture.isEmpty() ? rect() : picture).adjusted(margin, margin, -margin, -margin);
    QRect words = fontMetrics().boundingRect(area, kStatusFlags, statusText());
    if (!picture.isEmpty()) {
        words.adjust(0, 0, 0, 2 * kStripMargin);
        words.moveBottom(picture.bottom());
    }
    return {area.left(), words.top(), area.width(), words.height()};
}

void QRtspVideoWnd::paintStatus(QPainter& painter)
{
    const QString text = statusText();
    if (text.isEmpty())
        return;
    const QRect place = statusRect();
    const bool isOverPicture = !paneRect(selectedPane()).isEmpty();
    if (isOverPicture)
        painter.fillRect(place, QColor::fromRgba(kStrip));
    painter.setPen(QColor::fromRgba(isOverPicture ? kStripText : kQuietText));
    painter.drawText(place, kStatusFlags, text);
}

void QRtspVideoWnd::updateTryAgain()
{
    const QPointer<QRtspVideoWnd> guard(this);
    if (!isLost() && m_tryAgain->hasFocus())
        window()->setFocus(); // Qt would do it in the middle of hiding
    if (!guard)
        return;
    m_tryAgain->setVisible(isLost());
    placeTryAgain();
}

/// Under the words of an empty pane, else above the strip's right end.
void QRtspVideoWnd::placeTryAgain()
{
    if (!isLost())
        return;
    const QRect words = statusRect();
    const QRect picture = paneRect(selectedPane());
    m_tryAgain->ensurePolished();
    QRect place({}, m_tryAgain->sizeHint());
    if (picture.isEmpty())
        place.moveCenter({words.center().x(), words.bottom() + kTextMargin + place.height() / 2});
    else
        place.moveBottomRight(words.topRight() - QPoint(kStripMargin, kStripMargin));
    place.moveBottom(qMin(place.bottom(), height() - 1));
    m_tryAgain->setGeometry(place);
}
