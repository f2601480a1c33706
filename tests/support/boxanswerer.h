#pragma once

#include <QtWidgets>
#include <utility>

/**
 * Answers every message box that opens while it lives, as an operator would: it reads title and
 * text and clicks a button. A box that lacks the button gets a click on its first one.
 */
class BoxAnswerer : public QObject
{
public:
    explicit BoxAnswerer(QMessageBox::StandardButton answer) : m_answer(answer)
    {
        qApp->installEventFilter(this);
    }

    void setAnswer(QMessageBox::StandardButton answer) { m_answer = answer; }
    /// "title: text" of each box so far, in order; forgets them.
    QStringList takeBoxes() { return std::exchange(m_boxes, {}); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(watched) : nullptr;
        // Answered from the box's own event loop, once it waits for the operator.
        if (box && !event->spontaneous())
            QMetaObject::invokeMethod(
                this, [this, shown = QPointer<QMessageBox>(box)] { answer(shown); },
                Qt::QueuedConnection);
        return false;
    }

private:
    void answer(QMessageBox* box)
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

    QMessageBox::StandardButton m_answer;
    QStringList m_boxes;
};
