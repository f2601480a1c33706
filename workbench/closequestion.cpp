#include "workbench/closequestion.h"

#include "workbench/workbenchwindow.h"

#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>

CloseQuestion::CloseQuestion(WorkbenchWindow& window) : QObject(&window), m_window(window)
{
    window.setLeaveQuestion([this] { return mayLeave(); });
}

bool CloseQuestion::mayLeave()
{
    m_wasDiscarded = false;
    if (m_isAsking)
        return false;
    if (m_window.isReplaying() || m_window.options().isScripted())
        return true;
    // Who left without saving has given up what is in progress.
    if (m_window.rulesWindow() && !m_window.wasExited())
        m_window.finishEdit();
    return !(m_window.isEdited() || m_window.hasUnkeptSave()) || ask();
}

bool CloseQuestion::ask()
{
    const QScopedValueRollback<bool> asking(m_isAsking, true);
    QMessageBox box(&m_window);
    box.setObjectName(QStringLiteral("closeQuestion"));
    box.setIcon(QMessageBox::Question);
    box.setWindowTitle(WorkbenchWindow::programName());
    box.setTextFormat(Qt::PlainText);
    box.setText(m_window.isEdited()
                    ? tr("What was edited since the last save is lost otherwise. Save it?")
                    : tr("What was saved is in no file, and is lost otherwise. Save it?"));
    box.setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    box.button(QMessageBox::Save)->setText(tr("Save"));
    box.button(QMessageBox::Discard)->setText(tr("Discard"));
    box.button(QMessageBox::Cancel)->setText(tr("Cancel"));
    box.setDefaultButton(QMessageBox::Save);
    const int answer = box.exec();
    m_wasDiscarded = answer == QMessageBox::Discard;
    return m_wasDiscarded || (answer == QMessageBox::Save && save());
}

/// What is saved has to be in a file, or it would be lost after all: where that one cannot be
/// written, in another.
bool CloseQuestion::save()
{
    if (m_window.isEdited())
        m_window.pressSave();
    return !m_window.isEdited() && (!m_window.hasUnkeptSave() || m_window.saveResultAs());
}
