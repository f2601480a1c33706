#pragma once

#include <QObject>

class WorkbenchWindow;

/**
 * Keeps work from going without a word: where a window is to be closed, or to show other documents,
 * it asks what is to become of what was edited since the last save, or was saved into no file.
 */
class CloseQuestion : public QObject
{
    Q_OBJECT

public:
    /// @p window owns it, and asks it from now on.
    explicit CloseQuestion(WorkbenchWindow& window);

    /// Whether the work may go: nothing is lost by it, or the operator wants it so. An edit in
    /// progress is finished before. A script is asked nothing, and loses what it does not save.
    bool mayLeave();
    /// Whether it went unsaved when it was asked for last.
    bool wasDiscarded() const { return m_wasDiscarded; }

private:
    bool ask();
    bool save();

    WorkbenchWindow& m_window;
    bool m_isAsking = false;
    bool m_wasDiscarded = false;
};
