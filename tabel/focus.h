#pragma once

#include <Qt>

class QWidget;

/// The keyboard focus: where it goes, and where it has to leave widgets that are about to go.
namespace Focus
{

/**
 * Gives the focus of a widget in @p widget to the window around.
 *
 * Call it before such a widget is hidden or disabled. Qt would move the focus in the middle of
 * that, and touch the widget again after it has told of it; but who is told may delete it. In this
 * call that is safe, as long as the window stays: the caller looks what is left.
 */
void takeFrom(const QWidget& widget);

/// Takes the focus of @p widget or one in it, and gives it to nobody: @p widget is being destroyed,
/// and its window may be, too.
void endIn(const QWidget& widget);

/// Whether the focus goes to a menu or another window, or comes back from there.
bool isForAWhile(Qt::FocusReason reason);

} // namespace Focus
