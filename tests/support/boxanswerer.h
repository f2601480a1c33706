#pragma once

#include <QMessageBox>
#include <QObject>
#include <QStringList>

/**
 * Answers every message box that opens while it lives, as an operator would: it reads title and
 * text and clicks a button. A box that lacks the button gets a click on its first one.
 */
class BoxAnswerer : public QObject
{
    Q_OBJECT

public:
    explicit BoxAnswerer(QMessageBox::StandardButton answer = QMessageBox::Ok);

    void setAnswer(QMessageBox::StandardButton answer) { m_answer = answer; }
    /// "title: text" of each box so far, in order; forgets them.
    QStringList takeBoxes();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void answer(QMessageBox* box);

    QMessageBox::StandardButton m_answer;
    QStringList m_boxes;
};
