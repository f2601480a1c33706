#pragma once

#include <QPoint>
#include <QString>

class QKeySequence;
class QLineEdit;
class QWidget;

/**
 * What an operator's hand can do in a window: click and type, on widgets that are shown, enabled
 * and not covered. Each action returns why it could not be done, or an empty text.
 */
namespace OperatorHand
{

/// Scrolls the panels around @p widget until it shows.
void scrollIntoView(QWidget* widget);

/// Clicks into the middle of @p widget, or at @p position in it, scrolled into view first.
QString click(QWidget* widget);
QString clickAt(QWidget* widget, const QPoint& position, Qt::MouseButton button,
                Qt::KeyboardModifiers modifiers = Qt::NoModifier);
QString doubleClickAt(QWidget* widget, const QPoint& position, Qt::MouseButton button,
                      Qt::KeyboardModifiers modifiers);
/// Presses at @p from, moves to @p to with the left button held, and lets it go there.
QString drag(QWidget* widget, const QPoint& from, const QPoint& to,
             Qt::KeyboardModifiers modifiers);
QString moveTo(QWidget* widget, const QPoint& position);

/// Replaces the text of @p edit by typing; @p finish ends the edit with the return key.
QString type(QLineEdit* edit, const QString& text, bool finish);

/// Gives @p widget the focus, which ends an edit in progress.
void focus(QWidget* widget);
/// Presses and lets go one key, with its modifiers.
void press(QWidget* widget, const QKeySequence& key);

} // namespace OperatorHand
