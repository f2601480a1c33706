#include "workbench/autosave.h"

#include "host/api/kqmessagebox.h"
#include "host/api/wholefile.h"
#include "host/video/qrtspvideownd.h"
#include "workbench/documentfile.h"
#include "workbench/messagerecord.h"
#include "workbench/restorebar.h"
#include "workbench/sessionplayer.h"
#include "workbench/sessionrecorder.h"
#include "workbench/sessionscript.h"
#include "workbench/workbenchwindow.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

using kql::Json::Value;

namespace
{

bool isOneOf(const Value& step, std::initializer_list<const char*> names)
{
    const QString name = step["do"].asString();
    return std::any_of(names.begin(), names.end(),
                       [&name](const char* other) { return name == QLatin1String(other); });
}

bool isEdit(const Value& step)
{
    return isOneOf(step,
                   {"press", "drag", "double", "click", "set", "type", "enable", "key", "menu"});
}

/// Of the documents as they are now.
QString digestOf(std::initializer_list<QString> documents)
{
    DocumentFile::Digest digest;
    for (const QString& path : documents) {
        QByteArray bytes;
        QString error;
        // A pipe has nothing left, or waits.
        if (!path.isEmpty() && !UICommonMdl::WholeFile::isForeign(path))
            DocumentFile::readBytes(path, bytes, error);
        digest.add(bytes);
    }
    return digest.text();
}

/// Done again over other documents, the steps would change what nobody meant.
bool hasItsDocuments(const SessionScript& script)
{
    return std::all_of(script.steps.begin(), script.steps.end(), [](const SessionScript::Step& at) {
        const Value& step = at.step;
        return !step.isMember("digest") ||
               step["digest"].asString() ==
                   digestOf({step["template"].asString(), step["config"].asString()});
    });
}

} // namespace

Autosave::Autosave(WorkbenchWindow& window, const QString& folder, int delay)
    : m_window(window), m_finder(window.rulesWindow()), m_file(folder)
{
    AutosaveFile::sweep(folder);
    m_left = AutosaveFile::leftBehind(folder);
    m_timer.setSingleShot(true);
    m_timer.setInterval(delay);
    connect(&m_timer, &QTimer::timeout, this, &Autosave::write);
    connect(&m_window, &WorkbenchWindow::sgnMessage, this, &Autosave::takeMessage);
    connect(&m_window, &WorkbenchWindow::sgnResultKept, this, &Autosave::takeKept);
    auto* const recorder = new SessionRecorder(m_window, this);
    connect(recorder, &SessionRecorder::sgnStep, this, &Autosave::append);
    connect(recorder, &SessionRecorder::sgnLastReplaced, this, &Autosave::replaceLast);
    recorder->start();
    begin();
    if (m_left)
        offer();
}

Autosave::~Autosave()
{
    // Whoever closes the window over a result that could not be written has it back next time.
    if (m_isUnsaved && !m_window.resultError().isEmpty())
        write();
    else
        settle();
    delete m_bar;
}

QString Autosave::session() const
{
    QByteArray lines;
    for (const QByteArray& step : m_steps)
        lines += step + '\n';
    return QString::fromUtf8(lines);
}

QString Autosave::leftBehind() const
{
    return m_left ? m_left->path() : QString();
}

void Autosave::begin()
{
    settle();
    m_steps.clear();
    if (m_window.options().templateFile.isEmpty())
        return;
    m_steps.push_back(RecordedStep::size(m_window).toCompactText().toUtf8());
    Value load = RecordedStep::load(nullptr, m_window.options());
    load["digest"] = m_window.digest();
    m_steps.push_back(load.toCompactText().toUtf8());
}

void Autosave::append(const Value& step)
{
    if (isOneOf(step, {"load"})) {
        begin();
    } else if (RecordedStep::isAnswer(step)) {
        appendAnswer(step);
    } else {
        m_steps.push_back(step.toCompactText().toUtf8());
        if (isEdit(step)) {
            m_isUnsaved = true;
            m_isResultOld = true;
        }
        if (m_isUnsaved && !m_timer.isActive())
            m_timer.start();
    }
}

/// A save ends the edit in progress, and one that is refused shows its reason: the section, the
/// entry and what it lacks. That is done again; the save is not.
void Autosave::appendAnswer(const Value& step)
{
    if (!isOneOf(step, {"save"}))
        return;
    if (m_finder.unfinishedEdit())
        append(RecordedStep::finish());
    append(RecordedStep::check());
}

void Autosave::replaceLast(const Value& step)
{
    if (RecordedStep::isAnswer(step) || m_steps.empty())
        return;
    m_steps.pop_back();
    append(step);
}

/// Nothing is left to lose.
void Autosave::settle()
{
    m_isUnsaved = false;
    m_timer.stop();
    m_file.remove();
    m_window.tellTrouble(Trouble::KeptWork, {});
}

bool Autosave::write()
{
    QString error;
    if (m_file.write(session().toUtf8(), error)) {
        m_window.tellTrouble(Trouble::KeptWork, {});
        return true;
    }
    m_window.tellTrouble(Trouble::KeptWork,
                         tr("What you do is not kept from a crash: %1").arg(error));
    // The disk may have room again.
    m_timer.start();
    return false;
}

void Autosave::takeMessage(const MessageRecord& message)
{
    if (!message.isResult())
        return;
    m_isResultOld = m_isResultOld && m_window.wasExited();
    // A save that is not done again ends a series of edits all the same.
    m_steps.push_back(RecordedStep::key(QStringLiteral("Ins")).toCompactText().toUtf8());
    if (m_window.wasExited() && !m_window.hasUnkeptSave())
        settle();
}

void Autosave::takeKept()
{
    if (!m_isResultOld)
        settle();
}

void Autosave::offer()
{
    m_bar = new RestoreBar(m_window.videoSurface());
    connect(m_bar, &RestoreBar::sgnRestore, this, &Autosave::restore);
    connect(m_bar, &RestoreBar::sgnDiscard, this, &Autosave::discard);
    m_bar->ask(leftBehindText());
}

QString Autosave::leftBehindText() const
{
    const QString when = QLocale().toString(m_left->written(), QLocale::ShortFormat);
    SessionScript script;
    QString error;
    script.read(m_left->path(), error);
    for (const SessionScript::Step& step : script.steps) {
        if (isOneOf(step.step, {"load"}))
            return tr("The workbench ended unexpectedly (%1). What was not saved yet of channel "
                      "\"%2\", %3, can be restored.")
                .arg(when, qAsConst(step.step)["name"].asString(),
                     WorkbenchWindow::shortPath(qAsConst(step.step)["template"].asString()));
    }
    return tr("The workbench ended unexpectedly (%1). What was not saved yet can be restored.")
        .arg(when);
}

void Autosave::restore()
{
    SessionScript script;
    QString error;
    if (m_player || !m_left || !mayReplaceWork())
        return;
    if (script.read(m_left->path(), error) && !hasItsDocuments(script))
        error = tr("template or configuration are not what they were when the work began.");
    if (!error.isEmpty()) {
        finishRestore(error);
        return;
    }
    m_bar->hide();
    m_window.setReplaying(true);
    m_clipboard.emplace();
    m_player = std::make_unique<SessionPlayer>(m_window, std::move(script));
    connect(m_player.get(), &SessionPlayer::sgnFinished, this, &Autosave::finishRestore);
    m_player->start();
}

bool Autosave::mayReplaceWork()
{
    return !m_isUnsaved ||
           KQGUI::KQMessageBox::ShowInformation(
               &m_window, KQGUI::KQMessageBox::kQuestion, WorkbenchWindow::programName(),
               tr("What was done in this window since is lost then. Restore?"),
               QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

void Autosave::finishRestore(const QString& error)
{
    m_window.setReplaying(false);
    m_clipboard.reset();
    if (m_player)
        m_player.release()->deleteLater();
    if (!error.isEmpty()) {
        m_bar->ask(tr("Not all could be restored: %1").arg(error));
        return;
    }
    // The steps were recorded again as they were done; from here on they are this run's.
    if (m_isUnsaved && !write())
        m_bar->ask(tr("What was restored could not be written to a file again."));
    else
        discard();
}

void Autosave::discard()
{
    m_left->remove();
    m_left.reset();
    m_bar->deleteLater();
}
