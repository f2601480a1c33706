#include "fuzz/day/simulatedday.h"

#include "fuzz/day/crashedday.h"
#include "fuzz/day/dayorder.h"
#include "fuzz/day/savedcheck.h"
#include "fuzz/fault.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "draw/drawscene.h"
#include "host/json/reader.h"
#include "plugin/cintelligentrulesuiplugin.h"
#include "scene/basetabelscene.h"
#include "workbench/autosave.h"
#include "workbench/eventwait.h"
#include "workbench/messagerecord.h"
#include "workbench/modulehost.h"
#include "workbench/operatorhand.h"
#include "workbench/restorebar.h"
#include "workbench/sessionscript.h"
#include "workbench/workbenchwindow.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QTextStream>
#include <algorithm>

using Fuzz::require;

namespace
{

constexpr QSize kPicture(1280, 720);
constexpr int kDrawReply = 223;
constexpr int kResult = 996;
constexpr int kRestoreTimeout = 60000; // milliseconds
constexpr char kKept[] = "autosave";
constexpr char kLook[] = "look.txt";

QString line(const kql::Json::Value& step)
{
    return step.toStyledText().simplified();
}

QByteArray contentOf(const QString& path)
{
    QFile in(path);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

QString newestIn(const QString& folder)
{
    const auto files =
        QDir(folder).entryInfoList({QStringLiteral("*.jsonl")}, QDir::Files, QDir::Time);
    return files.isEmpty() ? QString() : files.first().filePath();
}

QStringList configurations(const QDir& folder)
{
    QStringList files;
    for (const QString& name : folder.entryList({QStringLiteral("*.json")}, QDir::Files)) {
        if (name != QLatin1String("template.json"))
            files.append(folder.filePath(name));
    }
    return files;
}

/// Spells numbers and switches as other devices do, but for those in an object that is one value.
void respell(kql::Json::Value& value)
{
    for (int i = 0; value.isArray() && i < value.size(); ++i)
        respell(value[i]);
    const QStringList names = value.isObject() ? value.memberNames() : QStringList();
    const bool isValue = std::none_of(names.begin(), names.end(), [&value](const QString& name) {
        return value[name.toStdString()].isArray() || value[name.toStdString()].isObject();
    });
    for (const QString& name : isValue ? QStringList() : names) {
        kql::Json::Value& member = value[name.toStdString()];
        if (member.isBool())
            member = member.asBool() ? 1 : 0;
        else if (member.isInt())
            member = QString::number(member.asInt());
        respell(member);
    }
}

kql::Json::Value editableLoad(kql::Json::Value step)
{
    step["selection-mode"] = false;
    step["editable"] = kql::Json::Value();
    return step;
}

/// Steps that leave entries and figures alone, whatever comes of them.
bool isHarmless(const kql::Json::Value& step)
{
    const QString name = step["do"].asString();
    const QStringList harmless{QStringLiteral("move"),   QStringLiteral("size"),
                               QStringLiteral("query"),  QStringLiteral("screenshot"),
                               QStringLiteral("wait"),   QStringLiteral("fold"),
                               QStringLiteral("select"), QStringLiteral("save"),
                               QStringLiteral("hover"),  QStringLiteral("check")};
    const bool stays = name == QLatin1String("cancel") && step["answer"].asString() != "Yes";
    const bool copies = name == QLatin1String("menu") && step["text"].asString() == "Copy";
    return stays || copies || harmless.contains(name);
}

} // namespace

SimulatedDay::SimulatedDay(const QString& example, unsigned seed, const QString& folder,
                           const QString& source)
    : m_example(QDir(example).dirName()),
      m_seed(seed),
      m_folder(folder),
      m_plugin(std::make_unique<IntelligentRulesUI::CIntelligentRulesUIPlugin>())
{
    // Screenshots go there.
    QDir::setCurrent(m_folder);
    QImage picture(kPicture, QImage::Format_RGB32);
    picture.fill(Qt::gray);
    picture.save(file("picture.png"));
    WorkbenchOptions options;
    options.templateFile = QDir(example).filePath(QStringLiteral("template.json"));
    options.source = source.isEmpty() ? file("picture.png") : source;
    m_window = std::make_unique<WorkbenchWindow>(options);
    m_window->setReplaying(true);
    m_window->moduleHost().use(*m_plugin);
    QString error;
    require(m_window->start(error), error.toStdString());
    m_window->show();
    m_window->activateWindow();
    SessionScript script;
    script.folder = m_folder;
    m_player = std::make_unique<SessionPlayer>(*m_window, std::move(script));
    m_operator = std::make_unique<DayOperator>(*m_window,
                                               configurations(example) << respelled(example), seed);
    QObject::connect(m_window.get(), &WorkbenchWindow::sgnMessage, m_player.get(),
                     [this](const MessageRecord& message) {
                         if (message.direction == MessageRecord::Direction::FromModule)
                             m_posted.append(QString::number(message.id) + ' ' + message.p2);
                     });
}

SimulatedDay::~SimulatedDay()
{
    m_player.reset();
    m_autosave.reset();
    m_window.reset();
}

QString SimulatedDay::file(const char* name) const
{
    return m_folder + QLatin1Char('/') + QLatin1String(name);
}

/// The example's configuration with values that a save keeps as they are spelled.
QString SimulatedDay::respelled(const QString& example) const
{
    Value document;
    const QByteArray text = contentOf(example + QLatin1String("/config.json"));
    require(kql::Json::Reader().parse(QString::fromUtf8(text), document), "no configuration");
    respell(document);
    writeFile("respelled.json", document);
    return file("respelled.json");
}

void SimulatedDay::writeFile(const char* name, const Value& document) const
{
    QFile out(file(name));
    const QByteArray text = document.toStyledText().toUtf8();
    require(out.open(QIODevice::WriteOnly) && out.write(text) == text.size(), "cannot write");
}

bool SimulatedDay::play(int actions)
{
    QElapsedTimer timer;
    timer.start();
    try {
        act(m_operator->load());
        while (m_actions < actions)
            act();
        saveAtLast();
        readBack();
    } catch (const Fuzz::Fault& fault) {
        m_report = this->fault(fault.what());
        return false;
    }
    m_report = summary(timer.elapsed());
    return true;
}

void SimulatedDay::playUntilKilled(int actions)
{
    try {
        m_autosave = std::make_unique<Autosave>(*m_window, file(kKept), 0);
        restore();
        while (m_actions < actions || !canBeKilled())
            act();
        leaveBehind();
    } catch (const Fuzz::Fault& fault) {
        m_report = this->fault(fault.what());
        return;
    }
    QTextStream(stdout) << (m_wasRestored ? CrashedDay::kRestored : CrashedDay::kReady) << Qt::endl;
    QCoreApplication::exec();
}

/// Starts anew where nothing was left.
void SimulatedDay::restore()
{
    const QByteArray before = contentOf(file(kLook));
    const QPointer<RestoreBar> bar = m_window->findChild<RestoreBar*>();
    require(bool(bar) == !before.isEmpty(),
            bar ? "what was done is offered again" : "what was not saved is not offered");
    if (!bar) {
        act(m_operator->load());
        return;
    }
    m_restored = QString::fromUtf8(contentOf(newestIn(file(kKept))));
    OperatorHand::click(bar->findChild<QWidget*>(QStringLiteral("restore")));
    const auto isDone = [&bar] { return !bar || bar->isVisible(); };
    require(EventWait::until(kRestoreTimeout, isDone), "a restore does not end");
    require(!bar, bar ? bar->findChild<QLabel*>()->text().toStdString() : std::string());
    m_wasRestored = true;
    m_window->setReplaying(true);
    require(look() == before.toStdString(),
            "what was\n" + before.toStdString() + "is restored as\n" + look());
}

/// Letters of an edit in progress are not kept; nor is what a client has closed.
bool SimulatedDay::canBeKilled() const
{
    return !entryCounts().empty() && !DayOrder::isEditing(*m_window);
}

void SimulatedDay::leaveBehind()
{
    QCoreApplication::processEvents();
    const bool isKept = !newestIn(file(kKept)).isEmpty();
    require(isKept || DayOrder::contents(*m_window) == m_loaded, "nothing is kept");
    QFile out(file(kLook));
    const std::string text = isKept ? look() : std::string();
    require(out.open(QIODevice::WriteOnly) && out.write(text.c_str()) >= 0, "cannot write");
}

std::string SimulatedDay::look() const
{
    return DayOrder::contents(*m_window) + DayOrder::shown(*m_window);
}

void SimulatedDay::act()
{
    act(m_operator->nextStep());
}

void SimulatedDay::act(const Value& step)
{
    ++m_actions;
    remember(step);
    const bool wasEditing = DayOrder::isEditing(*m_window);
    const bool isChecked = isHarmless(step) && !wasEditing;
    const std::string before = isChecked ? DayOrder::contents(*m_window) : std::string();
    const bool wasDrawing = DayOrder::isDrawing(*m_window);
    const std::map<int, int> counts = entryCounts();
    const QString why = m_player->run(step);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    require(why.isEmpty(), "what is offered cannot be done: " + why.toStdString());
    DayOrder::require(*m_window);
    m_travel.note(*m_window, step, wasEditing);
    // A save that is refused for a figure that is missing starts it.
    const bool hasStarted = !wasDrawing && DayOrder::isDrawing(*m_window);
    if (isChecked && !hasStarted)
        requireUnchanged(step, before);
    if (step["do"].asString() == QLatin1String("load"))
        m_loaded = DayOrder::contents(*m_window);
    else
        requireRoom(counts);
    takeMessages();
}

void SimulatedDay::remember(const Value& step)
{
    if (step["do"].asString() == QLatin1String("load")) {
        ++m_loads;
        m_restored.clear();
        m_sinceLoad.clear();
        Value size(kql::Json::ValueType::Object);
        size["do"] = "size";
        size["window"].append(m_window->width());
        size["window"].append(m_window->height());
        m_sinceLoad.push_back(size);
    }
    m_sinceLoad.push_back(step);
}

void SimulatedDay::requireUnchanged(const Value& step, const std::string& before) const
{
    const std::string after = DayOrder::contents(*m_window);
    require(after == before || after.empty(), step["do"].asString().toStdString() +
                                                  " changes what is there, from\n" + before +
                                                  "to\n" + after);
}

std::map<int, int> SimulatedDay::entryCounts() const
{
    std::map<int, int> counts;
    for (const BaseTabelScene* panel : m_window->rulesWindow()->findChildren<BaseTabelScene*>()) {
        if (panel->ruleData())
            counts[int(panel->ruleData()->getSceneType())] = panel->ruleData()->getDataCount();
    }
    return counts;
}

/// Documents may have any number of entries; an operator adds no more than are allowed.
void SimulatedDay::requireRoom(const std::map<int, int>& before) const
{
    for (const BaseTabelScene* panel : m_window->rulesWindow()->findChildren<BaseTabelScene*>()) {
        const RuleData* data = panel->ruleData();
        const auto found = data ? before.find(int(data->getSceneType())) : before.end();
        if (found != before.end() && data->getDataCount() > found->second)
            require(data->getDataCount() <= data->getTemplate()->countRange().max,
                    "there are more entries than allowed");
    }
}

void SimulatedDay::takeMessages()
{
    for (const QString& posted : std::exchange(m_posted, {})) {
        const int id = posted.section(' ', 0, 0).toInt();
        const QString text = posted.section(' ', 1);
        Value message;
        require(kql::Json::Reader().parse(text, message), "a message is not JSON");
        if (id == kDrawReply) {
            bool isDrawing = false;
            for (const auto* panel : m_window->rulesWindow()->findChildren<BaseTabelScene*>()) {
                const DrawScene* canvas = panel->getSelected() ? panel->getDrawScene() : nullptr;
                isDrawing = isDrawing || (canvas && canvas->HasDrawUnfinished());
            }
            m_drawingReplies += isDrawing ? 1 : 0;
            require(message["unFinishedDraw"].asBool() == isDrawing, "the reply is not true");
        } else if (id == kResult && message["result"].asInt() == 0) {
            ++m_saves;
            m_saved = text;
            SavedCheck::require(*m_window, text);
            require(m_travel.document().text(*m_window) ==
                        message["channelAbilityPO"].toCompactText().toStdString(),
                    "another document is saved than is compared");
        }
    }
}

/// What is shown after a day may be unfinished, locked or nothing; the operator goes on until it
/// can be saved.
void SimulatedDay::saveAtLast()
{
    constexpr int kPatience = 200;
    Value save(kql::Json::ValueType::Object);
    save["do"] = "save";
    save["answer"] = "Yes";
    m_operator->setClosing(true);
    m_saved.clear();
    for (int i = 0; m_saved.isEmpty(); ++i) {
        if (i % kPatience == 0 && (i > 0 || !canBeSaved()))
            act(editableLoad(m_operator->load()));
        act();
        if (m_saved.isEmpty())
            act(save);
    }
}

bool SimulatedDay::canBeSaved() const
{
    const auto* button = m_window->rulesWindow()->findChild<QWidget*>(QStringLiteral("btnSave"));
    return button->isVisible() && !entryCounts().empty();
}

/// The last result, loaded into the window as a configuration, shows what was there.
void SimulatedDay::readBack()
{
    Value message;
    kql::Json::Reader().parse(m_saved, message);
    writeFile("saved.json", message["channelAbilityPO"]);
    Value load = editableLoad(m_operator->load());
    load["config"] = file("saved.json");
    act(load);
    SavedCheck::require(*m_window, m_saved);
}

QString SimulatedDay::summary(qint64 milliseconds) const
{
    return QStringLiteral("%1: %2 actions in %3 s, %4 loads, %5 saves read back, %6 "
                          "unfinished drawings asked about, %7 steps back and forth compared")
        .arg(m_example)
        .arg(m_actions)
        .arg(milliseconds / 1000)
        .arg(m_loads)
        .arg(m_saves)
        .arg(m_drawingReplies)
        .arg(m_travel.compared());
}

QString SimulatedDay::fault(const std::string& what) const
{
    QString text = QStringLiteral("%1, seed %2, action %3: %4\n")
                       .arg(m_example)
                       .arg(m_seed)
                       .arg(m_actions)
                       .arg(QString::fromStdString(what));
    text += m_restored;
    for (const Value& step : m_sinceLoad)
        text += line(step) + '\n';
    return text;
}
