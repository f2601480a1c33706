#include "workbench/sessionplayer.h"

#include "host/api/rowcontract.h"
#include "host/video/maskedaddress.h"
#include "host/video/qrtspvideownd.h"
#include "workbench/boxwatcher.h"
#include "workbench/eventwait.h"
#include "workbench/loadoptions.h"
#include "workbench/maskedjson.h"
#include "workbench/modulehost.h"
#include "workbench/operatorhand.h"
#include "workbench/rowhand.h"
#include "workbench/sessionexpectation.h"
#include "workbench/stepcheck.h"
#include "workbench/workbenchwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileInfo>
#include <QFocusEvent>
#include <QHash>
#include <QLineEdit>
#include <QTimer>

namespace
{

constexpr int kNormalizedExtent = 8192;
constexpr int kPictureTimeout = 10000; // milliseconds

// The pixel whose position in 0..8192 is again n, at the size that n was recorded at. At a smaller
// size, the last column and row stand for what would lie behind them.
int pixelOf(int n, int extent)
{
    const qint64 scaled = static_cast<qint64>(n) * extent;
    const auto pixel = static_cast<int>((scaled + kNormalizedExtent - 1) / kNormalizedExtent);
    return qMin(pixel, extent - 1);
}

} // namespace

SessionPlayer::SessionPlayer(WorkbenchWindow& window, SessionScript script, QObject* parent)
    : QObject(parent),
      m_window(window),
      m_script(std::move(script)),
      m_finder(window.rulesWindow()),
      m_boxes(new BoxWatcher(this))
{
    connect(&m_window, &WorkbenchWindow::sgnMessage, this, [this](const MessageRecord& message) {
        if (message.direction == MessageRecord::Direction::FromModule)
            m_posted.append(message);
    });
}

SessionPlayer::Action SessionPlayer::actionFor(const QString& name)
{
    static const QHash<QString, Action> actions = {
        {QStringLiteral("size"), &SessionPlayer::doSize},
        {QStringLiteral("press"), &SessionPlayer::doPress},
        {QStringLiteral("move"), &SessionPlayer::doMove},
        {QStringLiteral("double"), &SessionPlayer::doDouble},
        {QStringLiteral("click"), &SessionPlayer::doClick},
        {QStringLiteral("pick"), &SessionPlayer::doPick},
        {QStringLiteral("enable"), &SessionPlayer::doEnable},
        {QStringLiteral("set"), &SessionPlayer::doSet},
        {QStringLiteral("type"), &SessionPlayer::doType},
        {QStringLiteral("finish"), &SessionPlayer::doFinish},
        {QStringLiteral("fold"), &SessionPlayer::doFold},
        {QStringLiteral("select"), &SessionPlayer::doSelect},
        {QStringLiteral("save"), &SessionPlayer::doSave},
        {QStringLiteral("cancel"), &SessionPlayer::doCancel},
        {QStringLiteral("query"), &SessionPlayer::doQuery},
        {QStringLiteral("close"), &SessionPlayer::doClose},
        {QStringLiteral("load"), &SessionPlayer::doLoad},
        {QStringLiteral("screenshot"), &SessionPlayer::doScreenshot},
        {QStringLiteral("wait"), &SessionPlayer::doWait},
        {QStringLiteral("expect"), &SessionPlayer::doExpect},
    };
    return actions.value(name, nullptr);
}

void SessionPlayer::start()
{
    QTimer::singleShot(0, this, &SessionPlayer::runNext);
}

void SessionPlayer::runNext()
{
    if (!m_window.isVisible()) {
        // The end that its closing asked for may have been dropped by a loop that began then.
        QApplication::quit();
        return;
    }
    if (m_next == m_script.steps.size()) {
        emit sgnFinished({});
        return;
    }
    const SessionScript::Step& step = m_script.steps[m_next++];
    const QString why = run(step.step);
    if (why.isEmpty()) {
        QTimer::singleShot(0, this, &SessionPlayer::runNext);
        return;
    }
    const QString said = MaskedJson::text(step.step.toStyledText()).simplified();
    emit sgnFinished(
        tr("line %1: %2: %3").arg(step.line).arg(said, UICommonMdl::maskedAddress(why)));
}

QString SessionPlayer::run(const Value& step)
{
    const QString name = step["do"].asString();
    const Action action = actionFor(name);
    if (!action)
        return tr("there is no step \"%1\"").arg(name);
    const QString fault = StepCheck::fault(step);
    if (!fault.isEmpty())
        return fault;
    if (action == &SessionPlayer::doExpect)
        return doExpect(step);
    m_posted.clear();
    m_boxes->begin(step["answer"].asString());
    const QString why = (this->*action)(step);
    if (why.isEmpty() && m_boxes->hadUnansweredQuestion())
        return tr("a question came up that the step does not answer: %1")
            .arg(m_boxes->lastText().value_or(QString()));
    return why;
}

QString SessionPlayer::doSize(const Value& step)
{
    const Value& size = step["window"];
    m_window.resize(size[0].asInt(), size[1].asInt());
    return {};
}

bool SessionPlayer::picturePosition(const Value& at, QPoint& position) const
{
    const QPoint normalized(at[0].asInt(), at[1].asInt());
    if (!QRect(QPoint(0, 0), QPoint(kNormalizedExtent, kNormalizedExtent)).contains(normalized))
        return false;
    const QRect picture = m_window.videoSurface()->paneRect(0);
    const QPoint inPicture(pixelOf(normalized.x(), picture.width()),
                           pixelOf(normalized.y(), picture.height()));
    position = picture.topLeft() + inPicture;
    return picture.contains(position);
}

QString SessionPlayer::doPress(const Value& step)
{
    QPoint position;
    if (!picturePosition(step["at"], position))
        return tr("the position is not on the picture");
    const bool right = step["button"].asString() == QLatin1String("right");
    return OperatorHand::clickAt(m_window.videoSurface(), position,
                                 right ? Qt::RightButton : Qt::LeftButton);
}

QString SessionPlayer::doMove(const Value& step)
{
    QPoint position;
    if (!picturePosition(step["at"], position))
        return tr("the position is not on the picture");
    return OperatorHand::moveTo(m_window.videoSurface(), position);
}

QString SessionPlayer::doDouble(const Value& step)
{
    QPoint position;
    if (!picturePosition(step["at"], position))
        return tr("the position is not on the picture");
    return OperatorHand::doubleClickAt(m_window.videoSurface(), position);
}

QWidget* SessionPlayer::panelOf(const Value& step, QString& why) const
{
    const QString scene = step["scene"].asString();
    QWidget* panel = m_finder.panel(scene);
    if (!panel)
        why = tr("there is no section \"%1\"").arg(scene);
    return panel;
}

QWidget* SessionPlayer::rowOf(const Value& step, QString& why) const
{
    QWidget* panel = panelOf(step, why);
    const Value& key = step[step.isMember("row") ? "row" : "key"];
    QWidget* row = panel ? m_finder.row(panel, key.asString()) : nullptr;
    if (panel && !row)
        why = tr("there is no row \"%1\"").arg(key.asString());
    return row;
}

QString SessionPlayer::doClick(const Value& step)
{
    QString why;
    QWidget* panel = panelOf(step, why);
    if (!panel)
        return why;
    QWidget* target = step.isMember("object")
                          ? m_finder.part(panel, step["object"].asString())
                          : m_finder.buttonByText(panel, step["text"].asString());
    return OperatorHand::click(target);
}

QString SessionPlayer::doPick(const Value& step)
{
    QString why;
    QWidget* panel = panelOf(step, why);
    if (!panel)
        return why;
    const bool child = step.isMember("child");
    const auto buttons = m_finder.entryButtons(panel, child);
    const int index = step[child ? "child" : "entry"].asInt() - 1;
    return OperatorHand::click(buttons.value(index, nullptr));
}

QString SessionPlayer::doEnable(const Value& step)
{
    QString why;
    QWidget* panel = panelOf(step, why);
    if (!panel)
        return why;
    QAbstractButton* button = m_finder.entryButtons(panel, false).value(step["entry"].asInt() - 1);
    QAbstractButton* box = button ? m_finder.enableBox(panel, *button) : nullptr;
    return box && box->isChecked() == step["on"].asBool() ? QString() : OperatorHand::click(box);
}

QString SessionPlayer::doSet(const Value& step)
{
    QString why;
    QWidget* row = rowOf(step, why);
    return row ? RowHand::set(row, step["value"]) : why;
}

QString SessionPlayer::doType(const Value& step)
{
    QString why;
    QWidget* row = rowOf(step, why);
    return row ? RowHand::type(row, step["text"].asString(), step["edit"].asString()) : why;
}

QString SessionPlayer::doFinish(const Value&)
{
    // As if something else were pressed; whether the window has the focus just then is no matter.
    QFocusEvent leave(QEvent::FocusOut, Qt::MouseFocusReason);
    if (QLineEdit* edit = m_finder.unfinishedEdit())
        QApplication::sendEvent(edit, &leave);
    return {};
}

QString SessionPlayer::doFold(const Value& step)
{
    QString why = doSelect(step);
    QWidget* panel = why.isEmpty() ? panelOf(step, why) : nullptr;
    if (!panel)
        return why;
    if (panel->property(RowContract::kFolded).toBool() == step["fold"].asBool())
        return {};
    return OperatorHand::click(m_finder.part(panel, QString::fromLatin1(RowContract::kTitleBar)));
}

QString SessionPlayer::doSelect(const Value& step)
{
    QString why;
    QWidget* panel = panelOf(step, why);
    if (!panel || panel->property(RowContract::kSelected).toBool())
        return why;
    QWidget* titleBar = m_finder.part(panel, QString::fromLatin1(RowContract::kTitleBar));
    QWidget* mask = m_finder.part(panel, QString::fromLatin1(RowContract::kMask));
    OperatorHand::scrollIntoView(titleBar);
    const bool masked = mask && mask->isVisible();
    return OperatorHand::clickAt(masked ? mask : titleBar, QPoint(5, 5), Qt::LeftButton);
}

QString SessionPlayer::doSave(const Value&)
{
    return OperatorHand::click(m_finder.windowButton(QString::fromLatin1(RowContract::kSave)));
}

QString SessionPlayer::doCancel(const Value&)
{
    return OperatorHand::click(m_finder.windowButton(QString::fromLatin1(RowContract::kCancel)));
}

QString SessionPlayer::doQuery(const Value&)
{
    m_window.moduleHost().queryUnfinishedDraw(m_window.options().algorithmId,
                                              m_window.options().channelId);
    return {};
}

QString SessionPlayer::doClose(const Value&)
{
    m_window.moduleHost().close();
    return {};
}

QString SessionPlayer::file(const Value& name) const
{
    const QFileInfo besideSession(m_script.folder + QLatin1Char('/') + name.asString());
    return besideSession.exists() ? besideSession.absoluteFilePath() : name.asString();
}

QString SessionPlayer::doLoad(const Value& step)
{
    WorkbenchOptions options = m_window.options();
    LoadOptions::apply(
        step, [this](const Value& name) { return file(name); }, options);
    QString error;
    m_window.load(options, error);
    return error;
}

QString SessionPlayer::doScreenshot(const Value& step)
{
    QString error;
    m_window.saveScreenshot(step["file"].asString(), error);
    return error;
}

QString SessionPlayer::doWait(const Value& step)
{
    if (!step["picture"].asBool()) {
        EventWait::until(step["ms"].asInt(), [] { return false; });
        return {};
    }
    const bool shown = EventWait::until(
        kPictureTimeout, [this] { return !m_window.videoSurface()->paneRect(0).isEmpty(); });
    if (shown)
        return {};
    return tr("no picture came: %1").arg(m_window.videoSurface()->statusText().simplified());
}

QString SessionPlayer::doExpect(const Value& step)
{
    return SessionExpectation(m_finder, m_boxes->lastText(), m_posted).check(step);
}
