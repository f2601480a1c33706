#include "host/api/rowcontract.h"
#include "tabel/controltabel.h"
#include "tests/support/mailbox.h"
#include "tests/support/rulestest.h"
#include "tests/support/script.h"
#include "tests/support/workbenchbench.h"
#include "workbench/boxwatcher.h"
#include "workbench/menuhand.h"
#include "workbench/messagerecord.h"
#include "workbench/operatorhand.h"
#include "workbench/sessionrecorder.h"
#include "workbench/workbench.h"

#include <QClipboard>
#include <functional>
#include <memory>

using kql::Json::Value;

namespace
{

constexpr int kResult = 996;
/// A workbench that replays, the last result that it posted, and an operator's hands.
class Bench : public WorkbenchBench
{
public:
    explicit Bench(const WorkbenchOptions& options) : WorkbenchBench(options, true)
    {
        QObject::connect(&window(), &WorkbenchWindow::sgnMessage, &window(),
                         [this](const MessageRecord& message) {
                             if (message.id == kResult)
                                 m_result = Mailbox::json(message.p2);
                         });
    }

    const Value& result() const { return m_result; }
    QWidget* panel(const QString& scene) { return finder().panel(scene); }
    QWidget* part(const QString& scene, const QString& name)
    {
        return finder().part(panel(scene), name);
    }
    QLineEdit* edit(const QString& key) { return part("global", key)->findChild<QLineEdit*>(); }
    QPoint at(QPoint percent)
    {
        const QRect picture = surface()->paneRect(0);
        return picture.topLeft() + QPoint((picture.width() - 1) * percent.x() / 100,
                                          (picture.height() - 1) * percent.y() / 100);
    }

private:
    Value m_result;
};

using Step = const Value&;

QString text(Step step, int position)
{
    return step[position].asString();
}

/// The "picture"; a button of the "window"; or of a section the button of the entry at a position,
/// or the widget of a name, in which another one may be named or told by its value.
QWidget* target(Bench& bench, Step place)
{
    if (text(place, 0) == "picture")
        return bench.surface();
    if (text(place, 0) == "window")
        return bench.button(qPrintable(text(place, 1)));
    if (place[1].isNumeric())
        return bench.finder().entryButtons(bench.panel(text(place, 0)), false)[place[1].asInt()];
    QWidget* const part = bench.part(text(place, 0), text(place, 1));
    for (auto* widget : part->findChildren<QWidget*>()) {
        if (place.size() > 2 && (widget->objectName() == text(place, 2) ||
                                 widget->property(RowContract::kOption) == text(place, 2)))
            return widget;
    }
    return part;
}

void press(QWidget* widget)
{
    QTest::mouseClick(widget, Qt::LeftButton, {}, {6, widget->height() / 2});
}

void enable(Bench& bench, Step step)
{
    const auto* entry = qobject_cast<QAbstractButton*>(target(bench, step[1]));
    press(bench.finder().enableBox(bench.panel(text(step[1], 0)), *entry));
}

void type(Bench& bench, Step step)
{
    auto* edit = qobject_cast<QLineEdit*>(target(bench, step[1]));
    press(edit);
    edit->setFocus();
    edit->selectAll();
    for (const QChar c : text(step, 2))
        QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, QString(c), {});
}

void key(Bench& bench, Step step)
{
    OperatorHand::press(target(bench, step[1]), QKeySequence(text(step, 2)));
}

void tabTo(Bench& bench, Step step)
{
    const QWidget* edit = target(bench, step[1]);
    for (int i = 0; i < 50 && !edit->hasFocus(); ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(edit->hasFocus());
}

void draw(Bench& bench, Step step)
{
    const QHash<QString, Qt::MouseButton> buttons{{"middle", Qt::MiddleButton},
                                                  {"right", Qt::RightButton}};
    for (const QPoint& percent : Fixtures::pointsOf(step[1]))
        QTest::mouseClick(bench.surface(), buttons.value(text(step, 2), Qt::LeftButton), {},
                          bench.at(percent));
}

void point(Bench& bench, Step step)
{
    for (const QPoint& percent : Fixtures::pointsOf(step[1])) {
        QMouseEvent move(QEvent::MouseMove, bench.at(percent), Qt::NoButton, Qt::NoButton, {});
        QApplication::sendEvent(bench.surface(), &move);
    }
}

/// The window becomes smaller, and the picture with it.
void shrink(Bench& bench, Step step)
{
    const QRect picture = bench.surface()->paneRect(0);
    bench.window().resize(Bench::kSize - Fixtures::valueOf(step[1]).toSize());
    QTRY_VERIFY(bench.surface()->paneRect(0) != picture);
}

/// What an operator's hands do; places on the picture are told in percent.
const Script<Bench> kHands{
    {{"press", [](Bench& b, Step s) { press(target(b, s[1])); }},
     {"enable", enable},
     {"type", type},
     {"key", key},
     {"menu",
      [](Bench& b, Step s) {
          QCOMPARE(MenuHand::choose(target(b, s[1]), text(s, 2)), QString());
          QCoreApplication::processEvents();
      }},
     {"focus", [](Bench& b, Step s) { target(b, s[1])->setFocus(Qt::TabFocusReason); }},
     {"tabTo", tabTo},
     {"draw", draw},
     {"point", point},
     {"double",
      [](Bench& b, Step s) {
          const QPoint at = b.at(Fixtures::pointsOf(s[1])[0]);
          QTest::mouseDClick(b.surface(), Qt::LeftButton, {}, at);
      }},
     {"shrink", shrink}},
    {}};

} // namespace

/// Sessions are recorded off real mouse and key events and compared line by line, then replayed
/// in another window, which has to post the same result.
class TstRecorder : public RulesTest
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath("session.jsonl");
    std::unique_ptr<Bench> m_bench;
    BoxWatcher* m_boxes = nullptr;

    /// Questions get @p answer; null leaves them to somebody else.
    bool record(const WorkbenchOptions& options, const char* answer)
    {
        m_bench.reset();
        m_bench = std::make_unique<Bench>(options);
        QString error;
        if (!m_bench->isReady())
            return false;
        auto* recorder = new SessionRecorder(m_bench->window(), &m_bench->window());
        m_boxes = answer ? new BoxWatcher(&m_bench->window()) : nullptr;
        if (m_boxes)
            m_boxes->begin(QString::fromLatin1(answer));
        return recorder->open(m_path, error);
    }

    /// What was recorded after the first line, which tells the window's size.
    QStringList recorded()
    {
        const QString text = QString::fromUtf8(ExampleFiles::contentOf(m_path));
        return text.split('\n', Qt::SkipEmptyParts).mid(1);
    }

    void compareReplayed(const WorkbenchOptions& options)
    {
        const auto box = [this] { return m_boxes ? m_boxes->lastText().value_or("") : QString(); };
        QTRY_VERIFY2_WITH_TIMEOUT(m_bench->result().isObject(), qPrintable(box()), kTryFor);
        const Value wanted = m_bench->result();
        m_bench.reset();
        // Somebody has copied something else since.
        QGuiApplication::clipboard()->setText("text");
        Bench replay(options);
        QVERIFY(replay.isReady());
        QCOMPARE(replay.play(m_path), QString());
        QTRY_VERIFY_WITH_TIMEOUT(replay.result().isObject(), kTryFor);
        QCOMPARE(replay.result().toStyledText(), wanted.toStyledText());
    }

private slots:
    void recordsHands_data() { Fixtures::addRows("hands.json"); }

    /// Places on the picture depend on its size, and are not compared.
    void recordsHands()
    {
        QFETCH(const Value, fixture);
        WorkbenchOptions options = Bench::example();
        options.selectionMode = fixture["selectionMode"].asBool();
        QVERIFY(record(options, "Yes"));
        kHands.play(*m_bench, fixture["hands"]);
        QStringList steps;
        for (const QString& line : recorded()) {
            Value step = Mailbox::json(line);
            step.removeMember("at");
            if (step.isMember("clip"))
                step["clip"] = step["clip"]["Name"];
            steps.append(step.toCompactText());
        }
        QStringList expected;
        for (int i = 0; i < fixture["recorded"].size(); ++i)
            expected.append(fixture["recorded"][i].toCompactText());
        QCOMPARE(steps, expected);
        compareReplayed(options);
    }

    void recordsExamples_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : ExampleFiles::names())
            QTest::newRow(qPrintable(name)) << name;
    }

    void recordsExamples()
    {
        QFETCH(const QString, name);
        QVERIFY(record(Bench::example(name), nullptr));
        QCOMPARE(m_bench->play(ExampleFiles::folder(name) + "session.jsonl"), QString());
        compareReplayed(Bench::example(name));
    }

    void recordsAnswersAndLoads()
    {
        QVERIFY(record(Bench::example(), "No"));
        Bench& bench = *m_bench;
        QAbstractButton* cancel = bench.button("btnCancel");
        press(cancel);
        WorkbenchOptions other = Bench::example();
        other.algorithmType = 7;
        other.configFile.clear();
        QString error;
        QVERIFY2(bench.window().load(other, error), qPrintable(error));
        // A button that the pointer leaves before letting go was not clicked.
        QWidget* add = bench.part("rules", "addRule");
        QTest::mousePress(add, Qt::LeftButton);
        QMouseEvent leave(QEvent::MouseMove, QPoint(-50, -50), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(add, &leave);
        QTest::mouseRelease(add, Qt::LeftButton, {}, {-50, -50});
        m_boxes->begin(QString("Yes"));
        press(cancel);
        Value load(kql::Json::ValueType::Object);
        load["do"] = "load";
        load["template"] = other.templateFile;
        load["config"] = Value();
        load["type"] = 7;
        QCOMPARE(recorded(), QStringList({R"({"do":"cancel","answer":"No"})", load.toCompactText(),
                                          R"({"do":"cancel","answer":"Yes"})"}));
        compareReplayed(Bench::example());
    }

    void saysWhatItCannotRecord()
    {
        QVERIFY(record(Bench::example(), nullptr));
        ControlTabel row;
        QSpinBox control;
        QLineEdit edit;
        const auto change = [this](QWidget& widget, const std::function<void()>& action) {
            m_bench->window().statusBar()->clearMessage();
            widget.setParent(m_bench->panel("rules"));
            widget.setObjectName("dial");
            widget.show();
            widget.setFocus();
            action();
            return m_bench->window().statusBar()->currentMessage();
        };
        const QString said("What was changed in \"dial\" cannot be recorded, nor restored after a "
                           "crash.");
        expectWarning(QRegularExpression(said));
        QCOMPARE(change(row, [&row] { emit row.sgnControlValueChange("dial"); }), said);
        QCOMPARE(change(control, [&control] { QTest::keyClick(&control, Qt::Key_Up); }), said);
        QCOMPARE(change(edit, [&edit] { QTest::keyClick(&edit, Qt::Key_A); }), said);
        QCOMPARE(recorded(), QStringList());
    }

    void endsEditsInAWindowThatIsNotActive()
    {
        QVERIFY(record(Bench::example("perimeter"), nullptr));
        QApplication::setActiveWindow(nullptr);
        OperatorHand::click(m_bench->part("global", "mask"));
        QLineEdit* edit = m_bench->edit("globalMountHeight");
        QCOMPARE(OperatorHand::type(edit, "12.5", false), QString());
        QVERIFY(edit->isModified());
        QCOMPARE(OperatorHand::type(m_bench->edit("globalSensitivity"), "4", false), QString());
        QVERIFY(!edit->isModified());
        QCOMPARE(m_bench->part("global", "globalMountHeight")->property(RowContract::kValue),
                 QVariant(QString("12.5")));
    }

    void tellsThatAReplayWasCut()
    {
        m_bench.reset();
        WorkbenchOptions options = Bench::example();
        options.replayFile =
            WorkbenchFiles::write(m_folder, "cut.jsonl", "{\"do\":\"wait\",\"ms\":60000}\n");
        QTimer closer;
        connect(&closer, &QTimer::timeout, qApp, &QApplication::closeAllWindows);
        closer.start(1000);
        QCOMPARE(Workbench(options).run(), int(Workbench::StepFailed));
    }

    void refusesUnwritableFiles()
    {
        // Of two recordings into one file the first goes on undisturbed.
        QVERIFY(record(Bench::example(), nullptr));
        QString error;
        QVERIFY(!SessionRecorder(m_bench->window(), nullptr).open(m_folder.path(), error));
        QVERIFY(error.startsWith(m_folder.path()));
        QVERIFY(!SessionRecorder(m_bench->window(), nullptr).open(m_path, error));
        QVERIFY2(error.startsWith(m_path + ": another recording"), qPrintable(error));
        QVERIFY(ExampleFiles::contentOf(m_path).contains("size"));
    }
};

QTEST_MAIN(TstRecorder)
#include "tst_recorder.moc"
