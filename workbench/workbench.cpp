#include "workbench/workbench.h"

#include "host/video/maskedaddress.h"
#include "workbench/autosave.h"
#include "workbench/busyreading.h"
#include "workbench/closequestion.h"
#include "workbench/display.h"
#include "workbench/documentopener.h"
#include "workbench/logkeeper.h"
#include "workbench/messagerecord.h"
#include "workbench/recentdocuments.h"
#include "workbench/sessionplayer.h"
#include "workbench/sessionrecorder.h"
#include "workbench/sessionscript.h"
#include "workbench/sourcebook.h"
#include "workbench/supportfile.h"
#include "workbench/windowplace.h"
#include "workbench/workbenchwindow.h"

#include <QApplication>
#include <QFileDialog>
#include <QTextStream>
#include <QTimer>

#include <atomic>

namespace
{

void complain(const QString& line)
{
    QTextStream(stderr) << "rules-workbench: " << line << '\n';
}

} // namespace

Workbench::Workbench(const WorkbenchOptions& options)
    : m_window(std::make_unique<WorkbenchWindow>(options)),
      m_question(new CloseQuestion(*m_window)),
      m_opener(new DocumentOpener(*m_window, *m_question))
{
}

Workbench::~Workbench() = default;

int Workbench::run()
{
    QString error;
    if (!start(error)) {
        complain(UICommonMdl::maskedAddress(error));
        return Unusable;
    }
    // It may have been closed by now, and would not end the loop any more.
    if (m_window->isVisible())
        QApplication::exec();
    if (!m_window->options().isScripted())
        WindowPlace::keep(*m_window, WindowPlace::usualFile());
    if (m_player && !m_isReplayOver)
        m_replayError = m_window->options().replayFile + QStringLiteral(": ") +
                        tr("the window was closed before the session's end");
    if (m_player)
        tellMissingResult();
    m_player.reset();
    // Before the troubles are read: ending it may write once more.
    m_autosave.reset();
    const TroubleLabel& troubles = m_window->troubles();
    if (!m_replayError.isEmpty())
        complain(m_replayError);
    for (const QString& trouble : troubles.lines())
        complain(trouble);
    if (!m_replayError.isEmpty())
        return StepFailed;
    if (troubles.has(Trouble::Result) || troubles.has(Trouble::Screenshot) ||
        troubles.has(Trouble::Record))
        return Unusable;
    if (!m_window->documentError().isEmpty())
        return Unusable;
    return m_window->wasExited() || m_question->wasDiscarded() ? LeftWithoutSaving : SavedOrClosed;
}

/// An older file in its place would stand for this session's result.
void Workbench::tellMissingResult()
{
    const QString& file = m_window->options().resultFile;
    if (!file.isEmpty() && !m_window->hasResult())
        m_window->tellTrouble(Trouble::Result, tr("%1: nothing was saved").arg(file));
}

bool Workbench::start(QString& error)
{
    if (!m_window->options().isScripted())
        WindowPlace::restore(*m_window, WindowPlace::usualFile());
    m_window->show();
    const WorkbenchOptions& options = m_window->options();
    connect(m_window.get(), &WorkbenchWindow::sgnMessage, this, [](const MessageRecord& message) {
        const bool isSent = message.direction == MessageRecord::Direction::ToModule;
        LogKeeper::note(QStringLiteral("message %1 %2")
                            .arg(message.id)
                            .arg(isSent ? QLatin1String("sent") : QLatin1String("received")));
    });
    connect(m_window.get(), &WorkbenchWindow::sgnSupportWanted, this, &Workbench::saveSupportFile);
    // A session is played over what its command line and its steps name, nothing else.
    if (!options.isScripted()) {
        m_window->keepSources(SourceBook::usualFile());
        m_opener->keepRecent(RecentDocuments::usualFile());
    }
    if (!openDocuments(error) || !record(error))
        return false;
    if (!options.replayFile.isEmpty())
        return replay(options.replayFile, error);
    // Once the window is up: it delays nobody.
    if (!options.isScripted())
        QTimer::singleShot(0, this, [this]() {
            m_autosave = std::make_unique<Autosave>(*m_window, AutosaveFile::usualFolder());
        });
    return true;
}

/// Somebody who sees the window can leave what takes long, and open something else.
bool Workbench::openDocuments(QString& error)
{
    const WorkbenchOptions options = m_window->options();
    if (options.isScripted() || !WorkbenchDisplay::isSeen())
        return m_window->start(error);
    if (!m_window->startEmpty(error))
        return false;
    if (!options.templateFile.isEmpty())
        m_opener->open(options);
    m_window->sltShowDocument();
    if (!m_window->documentError().isEmpty())
        complain(m_window->documentError());
    return true;
}

bool Workbench::record(QString& error)
{
    const QString& file = m_window->options().recordFile;
    if (file.isEmpty())
        return true;
    auto* recorder = new SessionRecorder(*m_window, m_window.get());
    connect(recorder, &SessionRecorder::sgnFailed, m_window.get(),
            [this](const QString& line) { m_window->tellTrouble(Trouble::Record, line); });
    return recorder->open(file, error);
}

SupportFile Workbench::supportFile() const
{
    const WorkbenchOptions& options = m_window->options();
    SupportFile support;
    support.addPlatform();
    support.addText(QStringLiteral("log.txt"), LogKeeper::lines().join(QLatin1Char('\n')));
    support.addText(QStringLiteral("session.jsonl"),
                    m_autosave ? m_autosave->session() : QString());
    support.addFile(QStringLiteral("session-left-behind.jsonl"),
                    m_autosave ? m_autosave->leftBehind() : QString());
    support.addFile(QStringLiteral("template.json"), options.templateFile);
    support.addFile(QStringLiteral("config.json"), options.configFile);
    support.addText(QStringLiteral("result.json"), m_window->lastResult());
    int number = 0;
    for (const QString& file : m_opener->refusedFiles())
        support.addFile(QStringLiteral("refused-%1.json").arg(++number), file);
    return support;
}

void Workbench::saveSupportFile()
{
    const QString path = QFileDialog::getSaveFileName(
        m_window.get(), tr("Save a support file"), QStringLiteral("rules-workbench-support.tar.gz"),
        tr("Archives (*.tar.gz)"));
    if (path.isEmpty())
        return;
    const SupportFile support = supportFile();
    // The work may go on after this returned.
    const auto isLeft = std::make_shared<std::atomic_bool>(false);
    const auto error =
        BusyReading::result<QString>(m_window.get(), tr("Saving ..."), [support, path, isLeft] {
            QString why;
            support.write(path, why, [isLeft] { return isLeft->load(); });
            return why;
        });
    *isLeft = !error;
    if (error && !error->isEmpty())
        m_window->report(*error);
}

bool Workbench::replay(const QString& path, QString& error)
{
    SessionScript script;
    if (!script.read(path, error))
        return false;
    m_window->setReplaying(true);
    m_player = std::make_unique<SessionPlayer>(*m_window, std::move(script));
    connect(m_player.get(), &SessionPlayer::sgnFinished, this, &Workbench::finishReplay);
    m_player->start();
    return true;
}

void Workbench::finishReplay(const QString& error)
{
    m_isReplayOver = true;
    const WorkbenchOptions& options = m_window->options();
    m_replayError = error.isEmpty() ? QString() : options.replayFile + QStringLiteral(": ") + error;
    m_window->close();
}
