#include "workbench/inputevents.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>
#include <QWindow>
// Of Qt's test library, which is not linked, only what marks events as the window system's.
#include <QtTest/qtestspontaneevent.h>

#include <utility>

// The doors of QtGui that Qt's test library uses, too; no header of QtGui declares them.
QT_BEGIN_NAMESPACE
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button,
                                      QEvent::Type type, Qt::KeyboardModifiers modifiers,
                                      int timestamp);
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* object, ulong timestamp, int key,
                                               Qt::KeyboardModifiers modifiers, const QString& text,
                                               bool autorepeat, ushort count);
QT_END_NAMESPACE

namespace InputEvents
{

namespace
{

/// Longer than what Qt takes for a double click, milliseconds.
constexpr int kApart = 500;

/// Of a clock of their own, on which two presses never make a double click.
int nextTimestamp(QEvent::Type type)
{
    static int clock = 0;
    ++clock;
    return type == QEvent::MouseButtonRelease ? std::exchange(clock, clock + kApart) : clock;
}

void sendMouse(const QPointer<QWidget>& widget, QEvent::Type type, Qt::MouseButton button,
               Qt::KeyboardModifiers modifiers, const QPoint& position)
{
    if (!widget)
        return;
    const Qt::MouseButton held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, position, widget->mapToGlobal(position), button, held, modifiers);
    event.setTimestamp(ulong(nextTimestamp(type)));
    QSpontaneKeyEvent::setSpontaneous(&event);
    QApplication::instance()->notify(widget, &event);
}

void sendKey(const QPointer<QWidget>& widget, QEvent::Type type, int key, const QString& text,
             Qt::KeyboardModifiers modifiers)
{
    if (!widget)
        return;
    QKeyEvent event(type, key, modifiers, text);
    QSpontaneKeyEvent::setSpontaneous(&event);
    const bool isShortcut =
        type == QEvent::KeyPress &&
        qt_sendShortcutOverrideEvent(widget, event.timestamp(), key, modifiers, text, false, 1);
    if (!isShortcut && widget)
        QApplication::instance()->notify(widget, &event);
}

const struct {
    Qt::KeyboardModifier modifier;
    Qt::Key key;
} kModifierKeys[] = {{Qt::ShiftModifier, Qt::Key_Shift},
                     {Qt::ControlModifier, Qt::Key_Control},
                     {Qt::AltModifier, Qt::Key_Alt},
                     {Qt::MetaModifier, Qt::Key_Meta}};

} // namespace

void click(QWidget* widget, Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
           const QPoint& position)
{
    const QPointer<QWidget> clicked(widget);
    sendMouse(clicked, QEvent::MouseButtonPress, button, modifiers, position);
    sendMouse(clicked, QEvent::MouseButtonRelease, button, modifiers, position);
}

void doubleClick(QWidget* widget, Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
                 const QPoint& position)
{
    sendMouse(widget, QEvent::MouseButtonDblClick, button, modifiers, position);
}

void movePointer(QWidget* widget, const QPoint& position)
{
    QCursor::setPos(widget->mapToGlobal(position));
    QCoreApplication::processEvents();
}

void drag(QWidget* widget, const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWindow> window = widget->window()->windowHandle();
    const QPoint origin = widget->mapTo(widget->window(), QPoint());
    const auto tell = [&](QEvent::Type type, Qt::MouseButton button, const QPoint& at) {
        if (!window)
            return;
        const Qt::MouseButton held =
            type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        qt_handleMouseEvent(window, origin + at, window->mapToGlobal(origin + at), held, button,
                            type, modifiers, nextTimestamp(type));
        QCoreApplication::processEvents();
    };
    tell(QEvent::MouseButtonPress, Qt::LeftButton, from);
    tell(QEvent::MouseMove, Qt::NoButton, (from + to) / 2);
    tell(QEvent::MouseMove, Qt::NoButton, to);
    tell(QEvent::MouseButtonRelease, Qt::LeftButton, to);
}

void key(QWidget* widget, int key, const QString& text, Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWidget> typedInto(widget);
    Qt::KeyboardModifiers held;
    for (const auto& each : kModifierKeys) {
        if (!(modifiers & each.modifier))
            continue;
        sendKey(typedInto, QEvent::KeyPress, each.key, {}, held);
        held |= each.modifier;
    }
    sendKey(typedInto, QEvent::KeyPress, key, text, modifiers);
    sendKey(typedInto, QEvent::KeyRelease, key, text, modifiers);
    for (auto each = std::rbegin(kModifierKeys); each != std::rend(kModifierKeys); ++each) {
        if (!(modifiers & each->modifier))
            continue;
        sendKey(typedInto, QEvent::KeyRelease, each->key, {}, held);
        held &= ~Qt::KeyboardModifiers(each->modifier);
    }
}

QString typedBy(int key)
{
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        return QStringLiteral("\r");
    if (key == Qt::Key_Backspace)
        return QStringLiteral("\b");
    if (key == Qt::Key_Tab)
        return QStringLiteral("\t");
    if (key == Qt::Key_Escape)
        return QStringLiteral("\x1b");
    if (key == Qt::Key_Delete)
        return QStringLiteral("\x7f");
    // Keys that type a letter or a sign have its code, that of the large letter.
    return key >= Qt::Key_Space && key <= Qt::Key_ydiaeresis ? QString(QChar(key).toLower())
                                                             : QString();
}

} // namespace InputEvents
