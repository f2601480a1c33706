#include "tests/support/boxanswerer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QShowEvent>
#include <utility>

BoxAnswerer::BoxAnswerer(QMessageBox::StandardButton answer) : m_answer(answer)
{
    qApp->installEventFilter(this);
}

QStringList BoxAnswerer::takeBoxes()
{
    return std::exchange(m_boxes, {});
}

bool BoxAnswerer::eventFilter(QObject* watched, QEvent* event)
{
    auto* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(watched) : nullptr;
    // Answered from the box's own event loop, once it waits for the operator.
    if (box && !event->spontaneous())
        QMetaObject::invokeMethod(
            this, [this, shown = QPointer<QMessageBox>(box)] { answer(shown); },
            Qt::QueuedConnection);
    return false;
}

void BoxAnswerer::answer(QMessageBox* box)
{
    if (!box)
        return;
    m_boxes.append(box->windowTitle() + QStringLiteral(": ") + box->text());
    QAbstractButton* button = box->button(m_answer);
    if (!button)
        button = box->buttons().value(0);
    if (button)
        button->click();
    else
        box->close();
}
