#pragma once

#include <QPoint>
#include <Qt>

class QString;
class QWidget;

/**
 * Input as a window system sends it: focus, shortcuts and popups follow as after a real hand.
 * Positions are in pixels of the widget. A widget may go while it is told.
 */
namespace InputEvents
{

void click(QWidget* widget, Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
           const QPoint& position);
/// The second press of a double click; the first is a click().
void doubleClick(QWidget* widget, Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
                 const QPoint& position);
/// Moves the pointer there, with no button held.
void movePointer(QWidget* widget, const QPoint& position);
/// Presses the left button at @p from, holds it to @p to and lets it go; through the window, as
/// widgets are told of moves with a button held there only.
void drag(QWidget* widget, const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers);

/// Presses and lets go @p modifiers and within them @p key, which types @p text.
void key(QWidget* widget, int key, const QString& text, Qt::KeyboardModifiers modifiers);
/// What @p key types on a keyboard of English with nothing held; empty for what types nothing.
QString typedBy(int key);

} // namespace InputEvents
