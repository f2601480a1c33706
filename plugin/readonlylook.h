#pragma once

#include <QList>
#include <QObject>

class BaseTabelScene;
class QKeyEvent;
class QPoint;
class QWheelEvent;
class WidgetTabelView;

namespace IntelligentRulesUI
{

/**
 * Lets an operator look around in a window in which nothing can be changed. Its sections are
 * disabled, so wheel, keys and presses that are for them come to the window around them: they
 * scroll, fold and select, and show other entries and figures. Nothing is drawn by that.
 */
class ReadOnlyLook : public QObject
{
    Q_OBJECT

public:
    /// Acts on what comes to @p window, which owns it; @p view shows the sections.
    ReadOnlyLook(QWidget& window, WidgetTabelView& view);

    /// The sections to look at, not owned; nothing is done while there are none.
    void start(const QList<BaseTabelScene*>& panels);

signals:
    /// The operator wants to look at this section.
    void sgnSection(BaseTabelScene* panel);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool scroll(const QWheelEvent& event);
    bool press(const QPoint& at);
    bool pressIn(BaseTabelScene& panel, QWidget* at);
    bool useKey(const QKeyEvent& event);
    void showNext(int way);

    QWidget& m_window;
    WidgetTabelView& m_view;
    QList<BaseTabelScene*> m_panels;
};

} // namespace IntelligentRulesUI
