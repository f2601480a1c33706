#include "workbench/workbench.h"

#include "host/video/maskedaddress.h"
#include "workbench/autosave.h"
#include "workbench/sessionplayer.h"
#include "workbench/sessionrecorder.h"
#include "workbench/sessionscript.h"
#include "workbench/sourcebook.h"
#include "workbench/windowplace.h"
#include "workbench/workbenchwindow.h"

#include <QApplication>
#include <QTextStream>
#include <QTimer>

namespace
{

void complain(const QString& line)
{
    QTextStream(stderr) << "rules-workbench: " << line << '\n';
}

} // namespace

Workbench::Workbench(const WorkbenchOptions& options)
    : m_window(std::make_unique<WorkbenchWindow>(options))
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
    return m_window->wasExited() ? LeftWithoutSaving : SavedOrClosed;
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
    // A session is played over what its command line and its steps name, nothing else.
    if (!m_window->options().isScripted())
        m_window->keepSources(SourceBook::usualFile());
    if (!m_window->start(error))
        return false;
    const WorkbenchOptions& options = m_window->options();
    if (!options.recordFile.isEmpty()) {
        auto* recorder = new SessionRecorder(*m_window, m_window.get());
        connect(recorder, &SessionRecorder::sgnFailed, m_window.get(),
                [this](const QString& line) { m_window->tellTrouble(Trouble::Record, line); });
        if (!recorder->open(options.recordFile, error))
            return false;
    }
    if (!options.replayFile.isEmpty())
        return replay(options.replayFile, error);
    // Once the window is up: it delays nobody.
    QTimer::singleShot(0, this, [this]() {
        m_autosave = std::make_unique<Autosave>(*m_window, AutosaveFile::usualFolder());
    });
    return true;
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
