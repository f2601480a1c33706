#pragma once

#include "host/api/kqhostexport.h"

#include <QPixmap>
#include <QRect>
#include <QWidget>

#include <memory>
#include <optional>

namespace CommonData
{
class CInterfaceSetManager;
}
class QPushButton;
namespace PreviewLogical
{
struct RtspVideoParam;
}
namespace UICommonMdl
{
class PictureSource;
class PictureStrip;
struct StreamOptions;
} // namespace UICommonMdl

/**
 * The video surface: shows a channel's picture, letterboxed, and lets its user paint over it and
 * take the mouse over it. It has one pane, number 0; other pane numbers name nothing.
 * Mouse and painting coordinates are logical pixels from the picture's top left corner; presses
 * and moves beside the picture are not delivered. All on the GUI thread.
 * While its dynamic property "drawing" is true, its own tools let presses on the picture through.
 */
class KQHOST_EXPORT QRtspVideoWnd : public QWidget
{
    Q_OBJECT

public:
    /// @p deviceContext is the QPainter of the pane, its origin and clip those of the picture.
    using DrawCallback = void (*)(void* deviceContext, void* user);
    using VideoSizeCallback = void (*)(int width, int height, void* user);

    /// @p panes is part of the host's signature; this surface always has one.
    explicit QRtspVideoWnd(QWidget* parent = nullptr, int panes = 1);
    ~QRtspVideoWnd() override;

    /// The manager stays the caller's; null unbinds.
    void setInterfaceSetManager(CommonData::CInterfaceSetManager* manager) { m_manager = manager; }
    CommonData::CInterfaceSetManager* interfaceSetManager() const { return m_manager; }

    /// Whether the draw callback is called; off at first.
    void setDrawEnabled(bool enabled);
    /// False for any division but 1, which changes nothing.
    bool setPaneDivision(int panes) { return panes == 1; }

    /// Called whenever the pane is painted with a picture; null unregisters.
    void registerDrawCallback(DrawCallback callback, void* user);
    /// Called with each picture size that is new, at once with one that is known; null unregisters.
    void registerVideoSizeCallback(VideoSizeCallback callback, void* user);

    /// Shows what the channel's address gives; false when there is no such pane.
    bool openLivePicture(const QString& channelId, int pane = 0);
    /// False when the address cannot be played; the pane then says why.
    bool openByRtsp(const PreviewLogical::RtspVideoParam& param);
    /// Closes the stream that was opened with these, nothing else.
    void closeRtsp(int sessionId, int playType);
    /// Leaves the pane idle.
    void resetToolBar(int pane);

    int selectedPane() const { return 0; }
    /// Where the picture is in the widget; empty without a picture.
    QRect paneRect(int pane) const;
    /// What the pane says about its state; empty while a picture plays.
    QString statusText() const;
    /// Opens a lost picture now, whatever it waits for; nothing happens while one plays.
    void tryAgain();

    /// Holds the picture still; the source plays on unseen. Nothing happens without a picture.
    void setFrozen(bool frozen);
    bool isFrozen() const { return m_still.has_value(); }
    /// The picture shown, in its shown size and without what is drawn over it.
    QImage snapshot() const;

    QSize sizeHint() const override { return {640, 360}; }
    QSize minimumSizeHint() const override { return {160, 90}; }

signals:
    void SignalMoveEvent(QMouseEvent* event);
    void SignalMousePress(QMouseEvent* event);
    void sgnWndClick(int pane, int x, int y);
    void sgnSWDbClicked(int pane, int x, int y);
    void sgnPictureRectChanged(int pane);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    enum class Opened { Nothing, Channel, Rtsp };

    void openAddress(const QString& address, const UICommonMdl::StreamOptions& options);
    void closeSource();
    void sltPictureReady();
    void sltStateChanged();
    void sltAddressesChanged();
    void sltSaveSnapshot();
    QSize shownSize() const;
    void reportVideoSize();
    void followPictureRect();
    bool isLost() const;
    QRect statusRect() const;
    void updateTryAgain();
    void placeTryAgain();

    void preparePixmap(const QRect& rect);
    void paintPicture(QPainter& painter);
    void paintOver();
    void paintStatus(QPainter& painter);

    CommonData::CInterfaceSetManager* m_manager = nullptr; ///< not owned
    bool m_drawEnabled = false;
    DrawCallback m_drawCallback = nullptr;
    void* m_drawUser = nullptr;
    VideoSizeCallback m_sizeCallback = nullptr;
    void* m_sizeUser = nullptr;

    Opened m_opened = Opened::Nothing;
    QString m_channelId;
    QString m_address;
    int m_sessionId = -1;
    int m_playType = -1;
    std::unique_ptr<UICommonMdl::PictureSource> m_source;
    std::optional<QImage> m_still; ///< the picture that is held, in its shown size
    UICommonMdl::PictureStrip* m_strip;
    QPushButton* m_tryAgain; ///< shown over a lost picture
    QSize m_reportedSize;
    QRect m_rect;     ///< the picture rectangle last announced
    QPixmap m_pixmap; ///< the newest picture as it is shown; null when not made yet
};
