#pragma once

#include "workbench/sourcebook.h"
#include "workbench/troublelabel.h"
#include "workbench/workbenchoptions.h"

#include <QMainWindow>

struct MessageRecord;
class MessageDock;
class ModuleHost;
class QLabel;
class QMenu;
class QMouseEvent;
class QRtspVideoWnd;

/**
 * The workbench's window: a host around one rules window, with menus for the documents, a dock of
 * messages and the pointer's position over the picture.
 */
class WorkbenchWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit WorkbenchWindow(const WorkbenchOptions& options, QWidget* parent = nullptr);
    ~WorkbenchWindow() override;

    /// Sources are kept in @p file from run to run; without this they end with the window.
    void keepSources(const QString& file);
    /// Loads the plug-in and the documents that the options name; false with one line in
    /// @p error.
    bool start(QString& error);
    /// Loads what @p options name into the window; false with one line in @p error.
    bool load(const WorkbenchOptions& options, QString& error);
    /// Has the rules window show what it would refuse to save; false when it cannot.
    bool checkSave();

    const WorkbenchOptions& options() const { return m_options; }
    QWidget* rulesWindow() const { return m_rulesWindow; }
    /// The picture in the rules window; null before start().
    QRtspVideoWnd* videoSurface() const;
    ModuleHost& moduleHost() { return *m_host; }

    /// A session runs: an exit without saving leaves the window open, file errors open no boxes.
    void setReplaying(bool replaying) { m_replaying = replaying; }
    /// Whether the last result said that the operator left without saving.
    bool wasExited() const { return m_exited; }
    /// What went wrong with writing the result file; empty when nothing did.
    const QString& resultError() const { return m_resultError; }
    /// Whether the rules window has sent a result, of saving or of leaving.
    bool hasResult() const { return !m_lastResult.isEmpty(); }
    /// Whether a save of the documents that are loaded is in no file although it should be.
    bool hasUnwrittenSave() const { return m_hasSaved && !m_resultError.isEmpty(); }
    /// False with one line in @p error.
    bool saveScreenshot(const QString& path, QString& error);

    /// Shows what is wrong with writing @p subject; an empty @p line ends that.
    void tellTrouble(Trouble subject, const QString& line);
    /// What is wrong now.
    const TroubleLabel& troubles() const { return *m_trouble; }

signals:
    /// options() are the new ones; the rules window does not show them yet.
    void sgnLoad();
    /// The rules window is about to show what it would refuse to save.
    void sgnCheck();
    void sgnMessage(const MessageRecord& message);
    /// The last result is in a file.
    void sgnResultKept();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void createMenus();
    void openTemplate();
    void openConfiguration();
    void openPicture();
    void editSources();
    void fillRecent();
    void showSource(const QString& source);
    SourceBook::Addresses sources() const;
    void applySources();
    void saveResultAs();
    void loadOrReport(const WorkbenchOptions& options);
    void report(const QString& error);
    void takeMessage(const MessageRecord& message);
    void takeResult(const QString& result);
    void writeResult();
    QString resultText() const;
    void showPointer(const QMouseEvent* event);

    WorkbenchOptions m_options;
    SourceBook m_book;
    ModuleHost* m_host;
    MessageDock* m_dock;
    QLabel* m_pointer;
    TroubleLabel* m_trouble;
    QMenu* m_recent = nullptr;
    QWidget* m_rulesWindow = nullptr; ///< the central widget once started
    QString m_lastResult;
    QString m_resultError;
    bool m_replaying = false;
    bool m_exited = false;
    bool m_hasSaved = false; ///< since the load
};
