#include "workbench/sessionplayer.h"

#include "host/api/rowcontract.h"
#include "host/video/maskedaddress.h"
#include "host/video/qrtspvideownd.h"
#include "workbench/boxwatcher.h"
#include "workbench/clipboardloan.h"
#include "workbench/eventwait.h"
#include "workbench/menuhand.h"
#include "workbench/modulehost.h"
#include "workbench/operatorhand.h"
#include "workbench/recordedstep.h"
#include "workbench/rowhand.h"
#include "workbench/sessionexpectation.h"
#include "workbench/stepcheck.h"
#include "workbench/workbenchwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileInfo>
#include <QHash>
#include <QKeySequence>
#include <QTimer>

#include <cmath>

namespace
{

constexpr int kNormalizedExtent = 8192;
constexpr int kBeside = 8;             // pixels that still count as the picture's border
constexpr int kPictureTimeout = 10000; // milliseconds

// The pixel whose position in 0..8192 is again n, at the size that n was recorded at. The border
// behind the last pixel has one where there is room for it, which @p last tells.
int pixelOf(int n, int extent, int last)
{
    const qint64 scaled = static_cast<qint64>(n) * extent;
    if (n < 0 || n > kNormalizedExtent)
        return static_cast<int>(std::floor(double(scaled) / kNormalizedExtent));
    const auto pixel = static_cast<int>((scaled + kNormalizedExtent - 1) / kNormalizedExtent);
    return qMin(pixel, n == kNormalizedExtent ? last : extent - 1);
}

Qt::KeyboardModifiers modifiersOf(const kql::Json::Value& step)
{
    const QString with = step["with"].asString();
    return with == QLatin1String("Ctrl")    ? Qt::ControlModifier
           : with == QLatin1String("Shift") ? Qt::ShiftModifier
                                            : Qt::NoModifier;
}

QString setRow(QWidget* row, const kql::Json::Value& step)
{
    return RowHand::set(row, step["value"]);
}

QString typeInRow(QWidget* row, const kql::Json::Value& step)
{
    return RowHand::type(row, step["text"].asString(), step["edit"].asString());
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

/// For @p action on the section that a step names.
SessionPlayer::Action SessionPlayer::inSection(const SectionAction& action)
{
    return [action](SessionPlayer& player, const Value& step) {
        const QString scene = step["scene"].asString();
        QWidget* panel = player.m_finder.panel(scene);
        return panel ? action(player, panel, step) : tr("there is no section \"%1\"").arg(scene);
    };
}

/// For @p action on the row that a step names.
SessionPlayer::Action SessionPlayer::inRow(RowAction action)
{
    return inSection([action](SessionPlayer& player, QWidget* panel, const Value& step) {
        const QString key = step[step.isMember("row") ? "row" : "key"].asString();
        QWidget* row = player.m_finder.row(panel, key);
        return row ? action(row, step) : tr("there is no row \"%1\"").arg(key);
    });
}

std::optional<QPoint> SessionPlayer::placeOf(const Value& position) const
{
    const QRect picture = m_window.videoSurface()->paneRect(0);
    const QPoint last = m_window.videoSurface()->rect().bottomRight() - picture.topLeft();
    const QPoint at(pixelOf(position[0].asInt(), picture.width(), last.x()),
                    pixelOf(position[1].asInt(), picture.height(), last.y()));
    const QRect around =
        QRect(QPoint(), picture.size()).adjusted(-kBeside, -kBeside, kBeside, kBeside);
    if (picture.isEmpty() || !around.contains(at))
        return std::nullopt;
    return picture.topLeft() + at;
}

/// For @p action at the place on the picture that a step names.
SessionPlayer::Action SessionPlayer::onPicture(const PictureAction& action)
{
    return [action](SessionPlayer& player, const Value& step) {
        const std::optional<QPoint> place = player.placeOf(step["at"]);
        return place ? action(player.m_window.videoSurface(), *place)
                     : tr("the position is not on the picture");
    };
}

/// For @p press there, with the button and the key held that the step names.
SessionPlayer::Action SessionPlayer::withButton(ButtonAction press)
{
    return [press](SessionPlayer& player, const Value& step) {
        const bool right = step["button"].asString() == QLatin1String("right");
        const auto pressed = [press, right, &step](QWidget* surface, const QPoint& position) {
            return press(surface, position, right ? Qt::RightButton : Qt::LeftButton,
                         modifiersOf(step));
        };
        return onPicture(pressed)(player, step);
    };
}

QString SessionPlayer::doDrag(const Value& step)
{
    const std::optional<QPoint> from = placeOf(step["from"]);
    const std::optional<QPoint> to = placeOf(step["to"]);
    return from && to ? OperatorHand::drag(m_window.videoSurface(), *from, *to, modifiersOf(step))
                      : tr("the position is not on the picture");
}

/// For a click on the window's button @p name.
SessionPlayer::Action SessionPlayer::onButton(const char* name)
{
    return [name](SessionPlayer& player, const Value&) {
        return OperatorHand::click(player.m_finder.windowButton(QString::fromLatin1(name)));
    };
}

SessionPlayer::Action SessionPlayer::actionFor(const QString& name)
{
    static const QHash<QString, Action> actions = {
        {QStringLiteral("size"), &SessionPlayer::doSize},
        {QStringLiteral("press"), withButton(&OperatorHand::clickAt)},
        {QStringLiteral("drag"), &SessionPlayer::doDrag},
        {QStringLiteral("move"), onPicture(&OperatorHand::moveTo)},
        {QStringLiteral("hover"), &SessionPlayer::doHover},
        {QStringLiteral("double"), withButton(&OperatorHand::doubleClickAt)},
        {QStringLiteral("click"), &SessionPlayer::doClick},
        {QStringLiteral("key"), &SessionPlayer::doKey},
        {QStringLiteral("pick"), inSection(&SessionPlayer::doPick)},
        {QStringLiteral("menu"), inSection(&SessionPlayer::doMenu)},
        {QStringLiteral("enable"), inSection(&SessionPlayer::doEnable)},
        {QStringLiteral("set"), inRow(&setRow)},
        {QStringLiteral("type"), inRow(&typeInRow)},
        {QStringLiteral("finish"), &SessionPlayer::doFinish},
        {QStringLiteral("fold"), inSection(&SessionPlayer::doFold)},
        {QStringLiteral("select"), inSection(&SessionPlayer::doSelect)},
        {QStringLiteral("save"), onButton(RowContract::kSave)},
        {QStringLiteral("cancel"), onButton(RowContract::kCancel)},
        {QStringLiteral("check"), &SessionPlayer::doCheck},
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
    const QString said = MessageRecord::masked(step.step.toStyledText()).simplified();
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
    if (name == QLatin1String("expect"))
        return doExpect(step);
    m_posted.clear();
    m_boxes->begin(step["answer"].asString());
    std::optional<ClipboardLoan> clipboard;
    if (step.isMember(RecordedStep::kClip)) {
        clipboard.emplace();
        ClipboardLoan::hold(step[RecordedStep::kClip]);
    }
    const QString why = action(*this, step);
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

/// Without a scene a button of the window is meant, or one of the selected section.
QString SessionPlayer::doClick(const Value& step)
{
    const QString object = step["object"].asString();
    QWidget* const button = m_finder.windowButton(object);
    if (button && !step.isMember("scene"))
        return OperatorHand::click(button);
    return inSection([object](SessionPlayer& player, QWidget* panel, const Value& given) {
        return OperatorHand::click(given.isMember("object") ? player.m_finder.part(panel, object)
                                                            : player.m_finder.buttonByText(
                                                                  panel, given["text"].asString()));
    })(*this, step);
}

/// To what has the focus, else to the window.
QString SessionPlayer::doKey(const Value& step)
{
    const QKeySequence keys(step["keys"].asString());
    // Where nothing manages windows none is active after a box; keys come to the active one only.
    if (!QApplication::activeWindow())
        QApplication::setActiveWindow(&m_window);
    if (step["to"].asString() == QLatin1String("picture"))
        OperatorHand::focus(m_window.videoSurface());
    const int times = step.isMember("times") ? step["times"].asInt() : 1;
    for (int i = 0; i < times; ++i) {
        QWidget* const focused = m_window.focusWidget();
        OperatorHand::press(focused ? focused : m_finder.window(), keys);
    }
    return {};
}

QAbstractButton* SessionPlayer::entryButton(QWidget* panel, const Value& step) const
{
    const bool child = step.isMember("child");
    const int index = step[child ? "child" : "entry"].asInt() - 1;
    return m_finder.entryButtons(panel, child).value(index, nullptr);
}

QString SessionPlayer::doPick(QWidget* panel, const Value& step)
{
    return OperatorHand::click(entryButton(panel, step));
}

/// Over an entry's button, or over the picture.
QString SessionPlayer::doHover(const Value& step)
{
    if (!step.isMember("entry"))
        return onPicture(&OperatorHand::moveTo)(*this, step);
    return inSection([](SessionPlayer& player, QWidget* panel, const Value& given) {
        QWidget* const button = player.entryButton(panel, given);
        OperatorHand::scrollIntoView(button);
        return OperatorHand::moveTo(button, button ? button->rect().center() : QPoint());
    })(*this, step);
}

QString SessionPlayer::doMenu(QWidget* panel, const Value& step)
{
    const auto buttons = m_finder.entryButtons(panel, false);
    const QString why = MenuHand::choose(buttons.value(step["entry"].asInt() - 1, nullptr),
                                         step["text"].asString());
    // The window does what was chosen once the menu is done.
    QCoreApplication::sendPostedEvents(m_finder.window(), QEvent::MetaCall);
    return why;
}

QString SessionPlayer::doEnable(QWidget* panel, const Value& step)
{
    QAbstractButton* button = m_finder.entryButtons(panel, false).value(step["entry"].asInt() - 1);
    QAbstractButton* box = button ? m_finder.enableBox(panel, *button) : nullptr;
    return box && box->isChecked() == step["on"].asBool() ? QString() : OperatorHand::click(box);
}

QString SessionPlayer::doFinish(const Value&)
{
    m_finder.finishEdit();
    return {};
}

QString SessionPlayer::doFold(QWidget* panel, const Value& step)
{
    const QString why = doSelect(panel, step);
    if (!why.isEmpty() || panel->property(RowContract::kFolded).toBool() == step["fold"].asBool())
        return why;
    return OperatorHand::click(m_finder.part(panel, QString::fromLatin1(RowContract::kTitleBar)));
}

QString SessionPlayer::doSelect(QWidget* panel, const Value&)
{
    if (panel->property(RowContract::kSelected).toBool())
        return {};
    QWidget* titleBar = m_finder.part(panel, QString::fromLatin1(RowContract::kTitleBar));
    QWidget* mask = m_finder.part(panel, QString::fromLatin1(RowContract::kMask));
    OperatorHand::scrollIntoView(titleBar);
    const bool masked = mask && mask->isVisible();
    return OperatorHand::clickAt(masked ? mask : titleBar, QPoint(5, 5), Qt::LeftButton);
}

QString SessionPlayer::doCheck(const Value&)
{
    return m_window.checkSave() ? QString() : tr("the window does not tell what it would refuse");
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

/// Overwrites in @p options what a load step names.
void SessionPlayer::takeOptions(const Value& step, WorkbenchOptions& options) const
{
    const auto takeFile = [&](const char* name, QString& target) {
        if (step.isMember(name))
            target = step[name].isNull() ? QString() : file(step[name]);
    };
    const auto takeText = [&](const char* name, QString& target) {
        if (step.isMember(name))
            target = step[name].asString();
    };
    takeFile("template", options.templateFile);
    takeFile("config", options.configFile);
    takeFile("picture", options.source);
    takeFile("source", options.source);
    takeText("channel", options.channelId);
    takeText("name", options.channelName);
    takeText("algorithm", options.algorithmId);
    takeText("code", options.algorithmCode);
    if (step.isMember("type"))
        options.algorithmType = step["type"].asInt();
    if (step.isMember("selection-mode"))
        options.selectionMode = step["selection-mode"].asBool();
    if (step.isMember("editable"))
        options.editable = step["editable"].isNull()
                               ? std::nullopt
                               : std::optional<bool>(step["editable"].asBool());
}

QString SessionPlayer::doLoad(const Value& step)
{
    WorkbenchOptions options = m_window.options();
    takeOptions(step, options);
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
