#pragma once

#include <QObject>
#include <memory>

struct WorkbenchOptions;
class Autosave;
class CloseQuestion;
class DocumentOpener;
class SessionPlayer;
class SupportFile;
class WorkbenchWindow;

/// One run of the workbench: the window, the session that is replayed or recorded, the result.
class Workbench : public QObject
{
    Q_OBJECT

public:
    /// Left without saving means what was changed since the load or the last save.
    enum ExitStatus { SavedOrClosed = 0, LeftWithoutSaving = 1, Unusable = 2, StepFailed = 3 };

    explicit Workbench(const WorkbenchOptions& options);
    ~Workbench() override;

    /// Runs until the window is closed; returns the program's exit status and prints what
    /// failed to the standard error stream.
    int run();

private:
    bool start(QString& error);
    bool openDocuments(QString& error);
    bool record(QString& error);
    void saveSupportFile();
    SupportFile supportFile() const;
    bool replay(const QString& path, QString& error);
    void tellMissingResult();
    void finishReplay(const QString& error);

    std::unique_ptr<WorkbenchWindow> m_window;
    CloseQuestion* m_question; ///< the window's
    DocumentOpener* m_opener;  ///< the window's
    std::unique_ptr<SessionPlayer> m_player;
    std::unique_ptr<Autosave> m_autosave; ///< null while a session is replayed
    bool m_isReplayOver = false;
    QString m_replayError;
};
