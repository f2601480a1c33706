#pragma once

#include "workbench/recentdocuments.h"

#include <QObject>

struct WorkbenchOptions;
class CloseQuestion;
class QMenu;
class WorkbenchWindow;

/**
 * The ways to open documents in a workbench's window: dialogs, examples, those opened before, those
 * dropped on it. It reads them where the operator can leave, asks before unsaved work would go, and
 * says in the window what is wrong with them.
 */
class DocumentOpener : public QObject
{
    Q_OBJECT

public:
    /// Adds its actions to the menu of @p window, which owns it, as it does @p question.
    DocumentOpener(WorkbenchWindow& window, CloseQuestion& question);

    /// Keeps what is opened in @p file for later runs.
    void keepRecent(const QString& file);

    void openTemplate();
    void openExample(const QString& name);
    /// Templates, configurations and results are told apart by what is in them.
    void openDropped(const QStringList& files);
    /// Reads what @p options name and loads it.
    void open(const WorkbenchOptions& options);
    /// The files that could not be used the last time that any could not; none before.
    const QStringList& refusedFiles() const { return m_refusedFiles; }

private:
    void fillMenu();
    void noteLoaded();
    void refuse(const QStringList& files, const QString& error);
    void openConfiguration();
    void loadAgain();
    void openDocuments(const RecentDocuments::Documents& documents);
    void fillExamples(QMenu& menu);
    void fillRecent(QMenu& menu);

    WorkbenchWindow& m_window;
    CloseQuestion& m_question;
    RecentDocuments m_recent;
    QStringList m_refusedFiles;
};
