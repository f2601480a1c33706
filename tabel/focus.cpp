#include "tabel/focus.h"

#include <QApplication>
#include <QWidget>

void Focus::takeFrom(const QWidget& widget)
{
    const QWidget* focused = QApplication::focusWidget();
    if (focused && widget.isAncestorOf(focused))
        widget.window()->setFocus();
}

void Focus::endIn(const QWidget& widget)
{
    QWidget* focused = QApplication::focusWidget();
    if (focused && widget.isAncestorOf(focused))
        focused->clearFocus();
}

bool Focus::isForAWhile(Qt::FocusReason reason)
{
    return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
}
