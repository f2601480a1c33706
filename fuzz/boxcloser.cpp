#include "fuzz/boxcloser.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

BoxCloser::BoxCloser()
{
    qApp->installEventFilter(this);
}

bool BoxCloser::eventFilter(QObject* watched, QEvent* event)
{
    auto* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(watched) : nullptr;
    if (!box || event->spontaneous())
        return false;
    // From the box's own event loop, once it waits.
    const auto close = [box, turn = m_boxes++] {
        const QList<QAbstractButton*> buttons = box->buttons();
        if (buttons.isEmpty())
            box->close();
        else
            buttons[turn % buttons.size()]->click();
    };
    QMetaObject::invokeMethod(box, close, Qt::QueuedConnection);
    return false;
}
