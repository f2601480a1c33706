#pragma once

#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

namespace CommonData
{
class CInterfaceSetManager;
}
namespace PreviewLogical
{
struct RtspVideoParam;
}

/// A video surface that offers what the module needs, and nothing more: it tells of a click with
/// the press, and of no button let go. Its picture is where the test puts it.
class QRtspVideoWnd : public QWidget
{
    Q_OBJECT

public:
    using DrawCallback = void (*)(void* deviceContext, void* user);
    using VideoSizeCallback = void (*)(int width, int height, void* user);

    explicit QRtspVideoWnd(QWidget* parent = nullptr, int = 1) : QWidget(parent) {}

    void setInterfaceSetManager(CommonData::CInterfaceSetManager*) {}
    void setDrawEnabled(bool) {}
    void setPaneDivision(int) {}
    void registerDrawCallback(DrawCallback callback, void* user)
    {
        m_draw = callback;
        m_drawUser = user;
    }
    void registerVideoSizeCallback(VideoSizeCallback, void*) {}
    void openLivePicture(const QString&) {}
    void openByRtsp(const PreviewLogical::RtspVideoParam&) {}
    void closeRtsp(int, int) {}
    void resetToolBar(int) { picture = QRect(); }
    int selectedPane() const { return 0; }
    QRect paneRect(int) const { return picture; }

    QRect picture;

signals:
    void SignalMoveEvent(QMouseEvent* event);
    void SignalMousePress(QMouseEvent* event);
    void sgnWndClick(int pane, int x, int y);
    void sgnSWDbClicked(int pane, int x, int y);

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        emit SignalMousePress(event);
        emit sgnWndClick(0, event->x(), event->y());
    }
    void mouseMoveEvent(QMouseEvent* event) override { emit SignalMoveEvent(event); }
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.translate(picture.topLeft());
        if (m_draw)
            m_draw(static_cast<void*>(&painter), m_drawUser);
    }

private:
    DrawCallback m_draw = nullptr;
    void* m_drawUser = nullptr;
};
