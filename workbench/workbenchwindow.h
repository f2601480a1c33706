#pragma once

#include "workbench/sourcebook.h"
#include "workbench/troublelabel.h"
#include "workbench/workbenchoptions.h"

#include <QMainWindow>
#include <functional>
#include <utility>

struct MessageRecord;
class FirstPage;
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
    /// @p error. Without a rules window nothing can be done then.
    bool start(QString& error);
    /// Loads the plug-in only, and forgets the documents; false as start().
    bool startEmpty(QString& error);
    /// Loads what @p options name into the window, and asks nobody; false with one line in @p
    /// error, and then nothing is loaded where the rules window refused them.
    bool load(const WorkbenchOptions& options, QString& error);
    /// Loads the parameter block that was read of what @p options name, with the digest of that;
    /// false as load().
    bool loadBlock(const WorkbenchOptions& options, const QString& block, const QString& digest,
                   QString& error);
    /// Ends the edit that is in progress in the rules window.
    void finishEdit();
    /// Has the rules window show what it would refuse to save; false when it cannot.
    bool checkSave();

    const WorkbenchOptions& options() const { return m_options; }
    /// Of the documents that options() name, as they were when they were read.
    const QString& digest() const { return m_digest; }
    QWidget* rulesWindow() const { return m_rulesWindow; }
    /// The picture in the rules window; null before start().
    QRtspVideoWnd* videoSurface() const;
    ModuleHost& moduleHost() { return *m_host; }
    QMenu& fileMenu() { return *m_file; }
    /// Before the window closes by itself, or by the operator, @p mayLeave says whether it may.
    void setLeaveQuestion(std::function<bool()> mayLeave) { m_mayLeave = std::move(mayLeave); }

    static QString programName();
    /// "folder/template.json": the name alone is often the same.
    static QString shortPath(const QString& path);
    static QString jsonFilter();

    /// A session runs: an exit without saving leaves the window open, file errors open no boxes.
    void setReplaying(bool replaying) { m_replaying = replaying; }
    bool isReplaying() const { return m_replaying; }
    /// Whether the operator left without saving, and nothing was loaded since.
    bool wasExited() const { return m_exited; }
    /// What went wrong with writing the result file; empty when nothing did.
    const QString& resultError() const { return m_resultError; }
    /// Whether the rules window has sent a result, of saving or of leaving.
    bool hasResult() const { return !m_lastResult.isEmpty(); }
    /// The text of that; of leaving only where nothing was saved before.
    const QString& lastResult() const { return m_lastResult; }
    /// Whether a save of the documents that are loaded is in no file although it should be.
    bool hasUnwrittenSave() const { return m_hasSaved && !m_resultError.isEmpty(); }
    /// Whether what was saved is in no file: none was named for it, or it could not be written.
    bool hasUnkeptSave() const;
    /// Whether anything was edited since the load or the last save, and the operator has not given
    /// it up.
    bool isEdited() const;
    /// Presses the rules window's Save where it can be pressed, and takes what it sends.
    void pressSave();
    /// Asks for a file to write the last result into; false when it is in none.
    bool saveResultAs();
    /// Says in a box what is wrong.
    void report(const QString& error);
    /// Says which document cannot be used, and why: where the sections would be while nothing is
    /// loaded, else in a box.
    void reportDocument(const QString& error);
    /// Why no document is loaded although one was named; empty when that is not so.
    const QString& documentError() const { return m_documentError; }
    /// False with one line in @p error.
    bool saveScreenshot(const QString& path, QString& error);

    /// Shows what is wrong with writing @p subject; an empty @p line ends that.
    void tellTrouble(Trouble subject, const QString& line);
    /// What is wrong now.
    const TroubleLabel& troubles() const { return *m_trouble; }

public slots:
    /// Shows in the title which document is loaded, and whether it was edited; without one, what to
    /// begin with.
    void sltShowDocument();

signals:
    /// options() are the new ones; the rules window does not show them yet.
    void sgnLoad();
    /// The rules window is about to show what it would refuse to save.
    void sgnCheck();
    /// The rules window is about to end what is in progress, but is not typed.
    void sgnFinish();
    void sgnMessage(const MessageRecord& message);
    /// What options() name is loaded.
    void sgnLoaded();
    /// The operator asks for other documents: to choose a template, an example, files.
    void sgnTemplateWanted();
    void sgnExampleWanted(const QString& name);
    void sgnDropped(const QStringList& files);
    /// The operator asks for a support file.
    void sgnSupportWanted();
    /// The last result is in a file.
    void sgnResultKept();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createFileMenu();
    void createOtherMenus();
    void connectRulesWindow();
    bool isLoaded() const;
    void showFirstPage(bool shown);
    void openPicture();
    void editSources();
    void fillRecent();
    void showSource(const QString& source);
    SourceBook::Addresses sources() const;
    void applySources();
    QString refusal() const;
    void takeMessage(const MessageRecord& message);
    void takeResult(const QString& result);
    void leave();
    void writeResult();
    QString resultText() const;
    void showPointer(const QMouseEvent* event);

    WorkbenchOptions m_options;
    QString m_digest;
    SourceBook m_book;
    ModuleHost* m_host;
    MessageDock* m_dock;
    QLabel* m_pointer;
    TroubleLabel* m_trouble;
    std::function<bool()> m_mayLeave;
    QMenu* m_file = nullptr;
    FirstPage* m_firstPage = nullptr; ///< null before it is needed
    QMenu* m_recent = nullptr;
    QWidget* m_rulesWindow = nullptr; ///< the central widget once started
    QString m_lastResult;
    QString m_resultError;
    bool m_replaying = false;
    bool m_exited = false;
    bool m_isLeaving = false; ///< it was asked already whether it may be left
    bool m_hasSaved = false;  ///< since the load
    bool m_isKept = false;    ///< the last result is in a file
    QString m_documentError;
};
