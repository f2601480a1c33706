#pragma once

#include "workbench/autosavefile.h"
#include "workbench/clipboardloan.h"
#include "workbench/panelfinder.h"
#include "workbench/recordedstep.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <memory>
#include <optional>
#include <vector>

struct MessageRecord;
class RestoreBar;
class SessionPlayer;
class WorkbenchWindow;

/**
 * Keeps the operator's work from a crash. The module is known by its messages only, so what the
 * operator did since the load is kept, as the steps of a session; a moment after each change they
 * are in a file, until the result is in one, the operator leaves, loads anew or ends the program.
 *
 * What a run that crashed left behind is offered, and restored by doing its steps again.
 */
class Autosave : public QObject
{
    Q_OBJECT

public:
    /// From the first change that is in no file until it is.
    static constexpr int kDelay = 2000; // milliseconds

    /// @p window has its rules window already; it is not owned.
    Autosave(WorkbenchWindow& window, const QString& folder, int delay = kDelay);
    /// An orderly end: the file goes, unless the result could not be written.
    ~Autosave() override;

    /// The steps of this run since the load, one a line.
    QString session() const;
    /// The file of what a crash left behind; empty for none.
    QString leftBehind() const;

private:
    using Value = kql::Json::Value;

    void begin();
    void append(const Value& step);
    void appendAnswer(const Value& step);
    void replaceLast(const Value& step);
    void settle();
    bool write();
    void takeMessage(const MessageRecord& message);
    void takeKept();

    void offer();
    QString leftBehindText() const;
    void restore();
    bool mayReplaceWork();
    void finishRestore(const QString& error);
    void discard();

    WorkbenchWindow& m_window;
    PanelFinder m_finder;
    AutosaveFile m_file;
    std::vector<QByteArray> m_steps; ///< since the load, one line each
    QTimer m_timer;
    bool m_isUnsaved = false;
    bool m_isResultOld = true;            ///< something was changed since the last result
    std::unique_ptr<AutosaveFile> m_left; ///< what a crash left behind; null for nothing
    QPointer<RestoreBar> m_bar;           ///< the window's
    std::unique_ptr<SessionPlayer> m_player;
    std::optional<ClipboardLoan> m_clipboard; ///< while it plays
};
