#include "workbench/boxwatcher.h"

#include "workbench/inputevents.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

BoxWatcher::BoxWatcher(QObject* parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

void BoxWatcher::begin(const QString& answer)
{
    m_answer = answer;
    m_lastText.reset();
    m_unanswered = false;
}

bool BoxWatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        if (auto* box = qobject_cast<QMessageBox*>(watched))
            QTimer::singleShot(0, box, [this, box] { answer(*box); });
    }
    return QObject::eventFilter(watched, event);
}

void BoxWatcher::answer(QMessageBox& box)
{
    m_lastText = box.text();
    QAbstractButton* button = box.defaultButton();
    if (box.standardButtons() & QMessageBox::No) {
        m_unanswered = m_unanswered || m_answer.isEmpty();
        const bool yes = m_answer == QLatin1String("Yes");
        button = box.button(yes ? QMessageBox::Yes : QMessageBox::No);
    } else if (!button && !box.buttons().isEmpty()) {
        button = box.buttons().first();
    }
    if (button)
        InputEvents::click(button, Qt::LeftButton, Qt::NoModifier, button->rect().center());
    else
        box.reject();
}
