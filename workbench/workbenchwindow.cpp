#include "workbench/workbenchwindow.h"

#include "host/api/kqsingleton.h"
#include "host/api/rowcontract.h"
#include "host/json/reader.h"
#include "host/json/value.h"
#include "host/video/channelsources.h"
#include "host/video/maskedaddress.h"
#include "host/video/picturefile.h"
#include "host/video/qrtspvideownd.h"
#include "workbench/documentfile.h"
#include "workbench/droptarget.h"
#include "workbench/firstpage.h"
#include "workbench/logkeeper.h"
#include "workbench/messagedock.h"
#include "workbench/messagerecord.h"
#include "workbench/modulehost.h"
#include "workbench/operatorhand.h"
#include "workbench/panelfinder.h"
#include "workbench/sourcesdialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMetaProperty>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStatusBar>

namespace
{

constexpr int kNormalizedExtent = 8192;
constexpr QSize kInitialSize(1180, 800);
const auto kSampleCamera = QStringLiteral("sample:");

/// While something is done that must not be interrupted.
struct WaitCursor {
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY(WaitCursor)
};

} // namespace

WorkbenchWindow::WorkbenchWindow(const WorkbenchOptions& options, QWidget* parent)
    : QMainWindow(parent),
      m_options(options),
      m_host(new ModuleHost(this)),
      m_dock(new MessageDock(this)),
      m_pointer(new QLabel),
      m_trouble(new TroubleLabel)
{
    setWindowTitle(programName());
    addDockWidget(Qt::BottomDockWidgetArea, m_dock);
    m_dock->hide();
    m_book.overlay(m_options.channelSources);
    createFileMenu();
    createOtherMenus();
    m_pointer->setObjectName(QStringLiteral("pointer"));
    statusBar()->addPermanentWidget(m_trouble);
    statusBar()->addPermanentWidget(m_pointer);
    resize(kInitialSize);
    connect(m_host, &ModuleHost::sgnMessage, this, &WorkbenchWindow::takeMessage);
    const auto* const drops = new DropTarget(*this);
    connect(drops, &DropTarget::sgnDocuments, this, &WorkbenchWindow::sgnDropped);
    connect(drops, &DropTarget::sgnSource, this, &WorkbenchWindow::showSource);
    connect(drops, &DropTarget::sgnRefused, this, &WorkbenchWindow::report);
}

WorkbenchWindow::~WorkbenchWindow()
{
    // The window's code lives in the plug-in, which goes with m_host.
    delete centralWidget();
}

QString WorkbenchWindow::programName()
{
    return tr("Rules workbench");
}

QString WorkbenchWindow::shortPath(const QString& path)
{
    const QFileInfo file(path);
    return file.absoluteDir().dirName() + QLatin1Char('/') + file.fileName();
}

QString WorkbenchWindow::jsonFilter()
{
    return tr("JSON documents (*.json);;All files (*)");
}

void WorkbenchWindow::createFileMenu()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    m_file = file;
    file->addAction(tr("Open &picture or video..."), this, &WorkbenchWindow::openPicture,
                    QKeySequence(tr("Ctrl+P")));
    file->addAction(tr("&Sources..."), this, &WorkbenchWindow::editSources);
    m_recent = file->addMenu(tr("R&ecent sources"));
    m_recent->setObjectName(QStringLiteral("recentSources"));
    connect(m_recent, &QMenu::aboutToShow, this, &WorkbenchWindow::fillRecent);
    file->addAction(tr("St&op the picture"), this, [this] {
        if (videoSurface())
            videoSurface()->resetToolBar(0);
    });
    file->addSeparator();
    file->addAction(tr("S&ave"), this, &WorkbenchWindow::pressSave, QKeySequence(tr("Ctrl+S")));
    file->addAction(tr("Save &result as..."), this, &WorkbenchWindow::saveResultAs,
                    QKeySequence(tr("Ctrl+Shift+S")));
    file->addSeparator();
    file->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence(tr("Ctrl+Q")));
}

void WorkbenchWindow::createOtherMenus()
{
    QMenu* view = menuBar()->addMenu(tr("&View"));
    view->addAction(m_dock->toggleViewAction());
    QMenu* help = menuBar()->addMenu(tr("&Help"));
    help->addAction(tr("Save a &support file..."), this, &WorkbenchWindow::sgnSupportWanted);
}

bool WorkbenchWindow::start(QString& error)
{
    const WorkbenchOptions options = m_options;
    if (!startEmpty(error))
        return false;
    if (!options.templateFile.isEmpty())
        return load(options, error);
    sltShowDocument();
    return true;
}

bool WorkbenchWindow::startEmpty(QString& error)
{
    if (!m_host->load(m_options.pluginFile)) {
        error = m_host->errorText();
        return false;
    }
    m_rulesWindow = m_host->createWindow(this);
    setCentralWidget(m_rulesWindow);
    connectRulesWindow();
    m_options.templateFile.clear();
    m_options.configFile.clear();
    statusBar()->showMessage(tr("Open a template to begin"));
    return true;
}

void WorkbenchWindow::connectRulesWindow()
{
    if (QRtspVideoWnd* surface = videoSurface())
        connect(surface, &QRtspVideoWnd::SignalMoveEvent, this, &WorkbenchWindow::showPointer);
    const PanelFinder finder(m_rulesWindow);
    if (QAbstractButton* const save = finder.windowButton(QString::fromLatin1(RowContract::kSave)))
        save->installEventFilter(this);
    const QMetaObject& rules = *m_rulesWindow->metaObject();
    const QMetaProperty edited = rules.property(rules.indexOfProperty(RowContract::kEdited));
    const int slot = staticMetaObject.indexOfMethod("sltShowDocument()");
    if (edited.hasNotifySignal())
        connect(m_rulesWindow, edited.notifySignal(), this, staticMetaObject.method(slot));
}

bool WorkbenchWindow::isLoaded() const
{
    const QAbstractButton* const save =
        PanelFinder(m_rulesWindow).windowButton(QString::fromLatin1(RowContract::kSave));
    return save && save->isEnabled();
}

bool WorkbenchWindow::isEdited() const
{
    return m_rulesWindow && !m_exited && m_rulesWindow->property(RowContract::kEdited).toBool();
}

bool WorkbenchWindow::hasUnkeptSave() const
{
    return m_hasSaved && !m_isKept && (m_options.resultFile.isEmpty() || !m_resultError.isEmpty());
}

void WorkbenchWindow::sltShowDocument()
{
    if (!m_rulesWindow)
        return;
    const QString document =
        m_options.configFile.isEmpty() ? m_options.templateFile : m_options.configFile;
    const bool hasDocument = isLoaded() && !document.isEmpty();
    // A name may look like the mark that stands for "modified".
    const QString name =
        shortPath(document).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
    setWindowTitle(hasDocument ? tr("%1[*] - %2").arg(name, programName()) : programName());
    setWindowFilePath(hasDocument ? document : QString());
    setWindowModified(hasDocument && (isEdited() || hasUnwrittenSave()));
    showFirstPage(!isLoaded());
}

/// Made when it is needed: most begin with documents.
void WorkbenchWindow::showFirstPage(bool shown)
{
    if (shown && !m_firstPage) {
        QWidget* const sections =
            PanelFinder(m_rulesWindow)
                .part(m_rulesWindow, QString::fromLatin1(RowContract::kSections));
        m_firstPage = new FirstPage(sections ? sections : m_rulesWindow);
        connect(m_firstPage, &FirstPage::sgnOpenTemplate, this,
                &WorkbenchWindow::sgnTemplateWanted);
        connect(m_firstPage, &FirstPage::sgnOpenExample, this, &WorkbenchWindow::sgnExampleWanted);
    }
    if (!m_firstPage)
        return;
    m_firstPage->tell(m_documentError);
    m_firstPage->setVisible(shown);
}

bool WorkbenchWindow::eventFilter(QObject* watched, QEvent* event)
{
    // Not at once: a load empties the window first, and so does its end.
    if (event->type() == QEvent::EnabledChange)
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (isVisible())
                    sltShowDocument();
            },
            Qt::QueuedConnection);
    return QMainWindow::eventFilter(watched, event);
}

QRtspVideoWnd* WorkbenchWindow::videoSurface() const
{
    return m_rulesWindow ? m_rulesWindow->findChild<QRtspVideoWnd*>() : nullptr;
}

void WorkbenchWindow::finishEdit()
{
    const PanelFinder finder(m_rulesWindow);
    // Who types is followed to the end; of a corner that is moved nothing tells it.
    if (!finder.unfinishedEdit())
        emit sgnFinish();
    finder.finishEdit();
}

bool WorkbenchWindow::checkSave()
{
    emit sgnCheck();
    return QMetaObject::invokeMethod(m_rulesWindow, RowContract::kCheck);
}

bool WorkbenchWindow::load(const WorkbenchOptions& options, QString& error)
{
    QString digest;
    const QString block = options.parameterBlock(error, &digest);
    if (block.isEmpty())
        return false;
    return loadBlock(options, block, digest, error);
}

bool WorkbenchWindow::loadBlock(const WorkbenchOptions& options, const QString& block,
                                const QString& digest, QString& error)
{
    m_options = options;
    m_digest = digest;
    m_hasSaved = false;
    m_exited = false;
    // Its trouble stays: a result that was asked for is missing still.
    m_resultError.clear();
    m_documentError.clear();
    emit sgnLoad();
    m_book.addRecent(SourceBook::absolute(m_options.source));
    applySources();
    statusBar()->showMessage(tr("Loading ..."));
    statusBar()->repaint();
    const WaitCursor wait;
    m_host->open(block);
    statusBar()->clearMessage();
    const bool isTaken = isLoaded();
    if (isTaken) {
        emit sgnLoaded();
    } else {
        error = refusal();
        m_documentError = UICommonMdl::maskedAddress(error);
    }
    sltShowDocument();
    return isTaken;
}

/// The rules window says why, but knows of no files.
QString WorkbenchWindow::refusal() const
{
    const QString why = PanelFinder(m_rulesWindow).refusal();
    QString files = m_options.templateFile;
    if (!m_options.configFile.isEmpty())
        files += QStringLiteral(", ") + m_options.configFile;
    return QStringLiteral("%1: %2").arg(files, why.isEmpty() ? tr("it cannot be loaded") : why);
}

void WorkbenchWindow::openPicture()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open picture or video"), {},
        tr("Pictures and videos (*.%1);;All files (*)")
            .arg(DropTarget::pictureEndings().join(QStringLiteral(" *."))));
    if (!path.isEmpty())
        showSource(path);
}

void WorkbenchWindow::keepSources(const QString& file)
{
    m_book.keepIn(file);
    m_book.overlay(m_options.channelSources);
    tellTrouble(Trouble::Sources, m_book.error());
}

void WorkbenchWindow::editSources()
{
    const SourceBook::Addresses before = sources();
    SourcesDialog dialog(before, m_book.remembersLogins(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const SourceBook::Addresses now = dialog.addresses();
    m_book.setRemembersLogins(dialog.remembersLogins());
    for (auto i = now.begin(); i != now.end(); ++i) {
        if (before.value(i.key()) != i.value())
            m_book.addRecent(i.value());
    }
    m_book.setAddresses(now);
    m_options.source.clear();
    applySources();
}

void WorkbenchWindow::fillRecent()
{
    m_recent->clear();
    m_recent->addAction(tr("Sample camera"), this, [this]() { showSource(kSampleCamera); });
    m_recent->addSeparator();
    for (const QString& source : m_book.recent()) {
        if (source == kSampleCamera)
            continue;
        QString text = UICommonMdl::maskedAddress(source);
        text.replace(QLatin1Char('&'), QStringLiteral("&&"));
        m_recent->addAction(text, this, [this, source]() { showSource(source); });
    }
}

void WorkbenchWindow::showSource(const QString& source)
{
    const SourceBook::Addresses before = sources();
    m_options.source = source;
    m_book.addRecent(source);
    applySources();
    QRtspVideoWnd* const surface = videoSurface();
    if (surface && sources() == before)
        surface->tryAgain();
}

SourceBook::Addresses WorkbenchWindow::sources() const
{
    SourceBook::Addresses addresses = m_book.addresses();
    if (!m_options.source.isEmpty())
        addresses.insert(m_options.channelId, m_options.source);
    return addresses;
}

void WorkbenchWindow::applySources()
{
    KQGUI::KQSingleton<UICommonMdl::ChannelSources>::Instance().setAddresses(sources());
    tellTrouble(Trouble::Sources, m_book.error());
}

void WorkbenchWindow::reportDocument(const QString& error)
{
    if (isLoaded())
        return report(error);
    m_documentError = UICommonMdl::maskedAddress(error);
    LogKeeper::note(m_documentError);
    sltShowDocument();
}

void WorkbenchWindow::report(const QString& error)
{
    const QString shown = UICommonMdl::maskedAddress(error);
    LogKeeper::note(shown);
    QMessageBox box(QMessageBox::Warning, programName(), shown, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

/// As the space bar does, so that the focus stays where it is and a recording has it.
void WorkbenchWindow::pressSave()
{
    QAbstractButton* const save =
        PanelFinder(m_rulesWindow).windowButton(QString::fromLatin1(RowContract::kSave));
    if (save && save->isEnabled() && save->isVisible())
        OperatorHand::press(save, QKeySequence(Qt::Key_Space));
    QCoreApplication::sendPostedEvents();
}

bool WorkbenchWindow::saveResultAs()
{
    if (m_lastResult.isEmpty()) {
        report(tr("Nothing has been saved in the rules window yet"));
        return false;
    }
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save result"), m_options.resultFile, jsonFilter());
    QString error;
    if (path.isEmpty())
        return false;
    m_isKept = DocumentFile::write(path, m_lastResult, error);
    if (!m_isKept) {
        report(error);
        return false;
    }
    m_resultError.clear();
    tellTrouble(Trouble::Result, {});
    sltShowDocument();
    emit sgnResultKept();
    return true;
}

void WorkbenchWindow::takeMessage(const MessageRecord& message)
{
    m_dock->add(message);
    if (message.isResult())
        takeResult(message.p2);
    emit sgnMessage(message);
    if (message.isResult() && !m_options.resultFile.isEmpty() && m_resultError.isEmpty())
        emit sgnResultKept();
    if (message.isResult() && m_exited)
        leave();
}

void WorkbenchWindow::takeResult(const QString& result)
{
    kql::Json::Value object;
    kql::Json::Reader().parse(result, object);
    m_exited = qAsConst(object)["result"].asInt() < 0;
    m_hasSaved = m_hasSaved || !m_exited;
    m_isKept = m_isKept && m_exited;
    // Leaving takes nothing back that was saved; what could not be written is tried once more.
    const bool isSaveKept = m_exited && m_hasSaved;
    if (!isSaveKept)
        m_lastResult = result;
    if (!isSaveKept || !m_resultError.isEmpty())
        writeResult();
    statusBar()->showMessage(resultText());
    sltShowDocument();
}

/// The rules window asked about what was edited already, but knows nothing of files.
void WorkbenchWindow::leave()
{
    if (!m_replaying && m_mayLeave && !m_mayLeave()) {
        m_exited = false;
        statusBar()->clearMessage();
        sltShowDocument();
        return;
    }
    m_host->close();
    const QScopedValueRollback<bool> leaving(m_isLeaving, true);
    if (!m_replaying)
        close();
}

void WorkbenchWindow::writeResult()
{
    m_resultError.clear();
    const QString replaced = m_options.replacedInput(m_options.resultFile);
    if (!replaced.isEmpty())
        m_resultError = tr("The result would replace a file that is used: %1").arg(replaced);
    else if (!m_options.resultFile.isEmpty())
        DocumentFile::write(m_options.resultFile, m_lastResult, m_resultError);
    m_resultError = UICommonMdl::maskedAddress(m_resultError);
    tellTrouble(Trouble::Result, m_resultError);
}

QString WorkbenchWindow::resultText() const
{
    // The trouble stands beside it, for longer.
    if (!m_resultError.isEmpty())
        return {};
    if (!m_exited)
        return hasUnkeptSave() ? tr("Saved, but in no file yet: File, Save result as")
                               : tr("Saved");
    return m_hasSaved ? tr("Left without saving what was changed since")
                      : tr("Left without saving");
}

void WorkbenchWindow::tellTrouble(Trouble subject, const QString& line)
{
    m_trouble->tell(subject, UICommonMdl::maskedAddress(line));
}

void WorkbenchWindow::showPointer(const QMouseEvent* event)
{
    const QRect picture = videoSurface()->paneRect(0);
    if (picture.isEmpty())
        return;
    m_pointer->setText(tr("%1, %2 px   %3, %4 of %5")
                           .arg(event->pos().x())
                           .arg(event->pos().y())
                           .arg(event->pos().x() * kNormalizedExtent / picture.width())
                           .arg(event->pos().y() * kNormalizedExtent / picture.height())
                           .arg(kNormalizedExtent));
}

bool WorkbenchWindow::saveScreenshot(const QString& path, QString& error)
{
    const QString replaced = m_options.replacedInput(path);
    if (replaced.isEmpty())
        return UICommonMdl::savePicture(grab().toImage(), path, error);
    error = tr("The screenshot would replace a file that is used: %1").arg(replaced);
    return false;
}

void WorkbenchWindow::closeEvent(QCloseEvent* event)
{
    if (!m_isLeaving && m_mayLeave && !m_mayLeave()) {
        event->ignore();
        return;
    }
    QString error;
    if (!m_options.screenshotFile.isEmpty() && !saveScreenshot(m_options.screenshotFile, error))
        tellTrouble(Trouble::Screenshot, error);
    m_host->close();
    QMainWindow::closeEvent(event);
}
