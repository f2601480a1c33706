#include "host/api/rowcontract.h"
#include "tabel/controltabel.h"
#include "tests/support/fixtures.h"
#include "tests/support/mailbox.h"
#include "tests/support/rulestest.h"
#include "tests/support/workbenchbench.h"
#include "workbench/boxwatcher.h"
#include "workbench/messagerecord.h"
#include "workbench/operatorhand.h"
#include "workbench/sessionrecorder.h"
#include "workbench/workbench.h"

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
    QWidget* panel(const char* scene) { return finder().panel(QString::fromLatin1(scene)); }
    QWidget* part(const char* scene, const char* name)
    {
        return finder().part(panel(scene), QString::fromLatin1(name));
    }
    QLineEdit* edit(const char* scene, const char* key, const char* name = "edit")
    {
        return part(scene, key)->findChild<QLineEdit*>(QString::fromLatin1(name));
    }
    QAbstractButton* option(const char* key, const char* value)
    {
        for (auto* button : part("rules", key)->findChildren<QAbstractButton*>()) {
            if (button->property("value").toString() == QLatin1String(value))
                return button;
        }
        return nullptr;
    }
    QAbstractButton* entry(int number, const char* scene = "rules")
    {
        return finder().entryButtons(panel(scene), false).value(number - 1);
    }
    void press(QWidget* widget)
    {
        QTest::mouseClick(widget, Qt::LeftButton, {}, {6, widget->height() / 2});
    }
    void draw(QPoint percent, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(surface(), button, {}, at(percent));
    }
    QPoint at(QPoint percent)
    {
        const QRect picture = surface()->paneRect(0);
        return picture.topLeft() + QPoint((picture.width() - 1) * percent.x() / 100,
                                          (picture.height() - 1) * percent.y() / 100);
    }
    void point(QPoint percent)
    {
        QMouseEvent move(QEvent::MouseMove, at(percent), Qt::NoButton, Qt::NoButton, {});
        QApplication::sendEvent(surface(), &move);
    }
    void type(QLineEdit* edit, const QString& text)
    {
        press(edit);
        edit->setFocus();
        edit->selectAll();
        for (const QChar c : text)
            QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, QString(c), {});
    }

private:
    Value m_result;
};

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

    void compareRecorded(const char* session)
    {
        const QByteArray text = Fixtures::contentOf(QString("sessions/%1.jsonl").arg(session));
        compareRecorded(QString::fromUtf8(text).split('\n', Qt::SkipEmptyParts));
    }
    void compareRecorded(const QStringList& expected)
    {
        const QStringList lines = recorded();
        for (int i = 0; i < qMin(lines.size(), expected.size()); ++i)
            QCOMPARE(lines[i], expected[i]);
        QCOMPARE(lines.size(), expected.size());
    }

    void compareReplayed(const WorkbenchOptions& options)
    {
        const auto box = [this] { return m_boxes ? m_boxes->lastText().value_or("") : QString(); };
        QTRY_VERIFY2_WITH_TIMEOUT(m_bench->result().isObject(), qPrintable(box()), kTryFor);
        const Value wanted = m_bench->result();
        m_bench.reset();
        Bench replay(options);
        QVERIFY(replay.isReady());
        QCOMPARE(replay.play(m_path), QString());
        QTRY_VERIFY_WITH_TIMEOUT(replay.result().isObject(), kTryFor);
        QCOMPARE(replay.result().toStyledText(), wanted.toStyledText());
    }

private slots:
    void recordsRows()
    {
        QVERIFY(record(Bench::example(), "Yes"));
        Bench& bench = *m_bench;
        bench.press(bench.entry(2));
        bench.type(bench.edit("rules", "ruleName"), "Ladehof大门");
        bench.type(bench.edit("rules", "ruleSpeed"), "999");
        QTest::keyClick(bench.edit("rules", "ruleSpeed"), Qt::Key_Return);
        QTest::keyClick(bench.option("ruleObjects", "Human"), Qt::Key_Space);
        bench.press(bench.option("ruleAction", "Stay"));
        bench.type(bench.edit("rules", "ruleSize", "minimum"), "12");
        bench.type(bench.edit("rules", "ruleSize", "maximum"), QString());
        QTest::keyClick(bench.edit("rules", "ruleSize", "maximum"), Qt::Key_Backspace);
        QTest::keyClick(bench.edit("rules", "ruleSize", "maximum"), Qt::Key_Return);
        bench.type(bench.edit("rules", "ruleSize", "minimum"), "-3");
        QTest::keyClick(bench.edit("rules", "ruleSize", "minimum"), Qt::Key_Return);
        bench.type(bench.edit("rules", "ruleSize", "minimum"), "12");
        QTest::keyClick(bench.edit("rules", "ruleSize", "minimum"), Qt::Key_Return);
        // Refused when it is left, so there is nothing to record.
        bench.type(bench.edit("rules", "ruleSize", "minimum"), "2147483648");
        bench.type(bench.edit("rules", "ruleSize", "maximum"), "80");
        bench.press(bench.part("rules", "ruleTrack")->findChild<QAbstractButton*>());
        bench.type(bench.edit("rules", "ruleSize", "maximum"), "2");
        bench.press(bench.part("global", "mask"));
        bench.type(bench.edit("global", "globalSensitivity"), "3");
        bench.press(bench.part("global", "titleBar"));
        bench.press(bench.button("btnSave"));
        compareRecorded("recordedrows");
        compareReplayed(Bench::example());
    }

    void recordsDrawing()
    {
        QVERIFY(record(Bench::example(), "Yes"));
        Bench& bench = *m_bench;
        bench.press(bench.part("rules", "addRule"));
        bench.point({10, 10});
        bench.point({30, 20});
        bench.draw({30, 20});
        bench.draw({70, 20});
        QTest::mouseClick(bench.surface(), Qt::MiddleButton, {}, bench.at({50, 50}));
        bench.draw({70, 60});
        QTest::mouseDClick(bench.surface(), Qt::LeftButton, {}, bench.at({70, 60}));
        bench.draw({31, 70});
        bench.draw({50, 50}, Qt::RightButton);
        bench.draw({40, 40});
        bench.draw({60, 50});
        bench.point({100, 100});
        const QRect picture = bench.surface()->paneRect(0);
        bench.window().resize(Bench::kSize - QSize(40, 30));
        QTRY_VERIFY_WITH_TIMEOUT(bench.surface()->paneRect(0) != picture, kTryFor);
        bench.press(bench.part("rules", "redraw"));
        bench.draw({20, 30});
        bench.draw({60, 30});
        bench.draw({60, 60});
        bench.draw({20, 60}, Qt::RightButton);
        bench.draw({30, 30});
        bench.draw({50, 45});
        bench.type(bench.edit("rules", "ruleSize", "minimum"), "5");
        bench.type(bench.edit("rules", "ruleSize", "maximum"), "50");
        bench.press(bench.button("btnSave"));
        QStringList kinds;
        for (const QString& line : recorded()) {
            const Value step = Mailbox::json(line);
            const Value& what = step[step.isMember("object") ? "object" : "do"];
            kinds.append(what.asString());
        }
        QCOMPARE(kinds.join(' '),
                 "addRule wait move press press double press press press press "
                 "move size redraw press press press press press press set set save");
        compareReplayed(Bench::example());
    }

    void recordsKeyboard()
    {
        QVERIFY(record(Bench::example(), "Yes"));
        Bench& bench = *m_bench;
        bench.edit("rules", "ruleName")->setFocus();
        QLineEdit* edit = bench.edit("global", "globalSensitivity");
        for (int i = 0; i < 50 && !edit->hasFocus(); ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(edit->hasFocus());
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_4);
        QTest::keyClick(edit, Qt::Key_Return);
        QAbstractButton* radio =
            bench.part("global", "globalSurrounding")->findChildren<QAbstractButton*>().value(0);
        radio->setFocus(Qt::TabFocusReason);
        QTest::keyClick(radio, Qt::Key_Down);
        QTest::keyClick(bench.button("btnSave"), Qt::Key_Space);
        compareRecorded("recordedkeyboard");
        compareReplayed(Bench::example());
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

    void recordsSelectionMode()
    {
        WorkbenchOptions options = Bench::example();
        options.selectionMode = true;
        QVERIFY(record(options, "Yes"));
        Bench& bench = *m_bench;
        bench.press(bench.finder().enableBox(bench.panel("rules"), *bench.entry(2)));
        bench.press(bench.finder().enableBox(bench.panel("rules"), *bench.entry(3)));
        bench.press(bench.button("btnSave"));
        compareRecorded("recordedselection");
        compareReplayed(options);
    }

    void recordsAnswersAndLoads()
    {
        QVERIFY(record(Bench::example(), "No"));
        Bench& bench = *m_bench;
        QAbstractButton* cancel = bench.button("btnCancel");
        bench.press(cancel);
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
        bench.press(cancel);
        Value load(kql::Json::ValueType::Object);
        load["do"] = "load";
        load["template"] = other.templateFile;
        load["config"] = Value();
        load["type"] = 7;
        compareRecorded({R"({"do":"cancel","answer":"No"})", load.toCompactText(),
                         R"({"do":"cancel","answer":"Yes"})"});
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
        QLineEdit* edit = m_bench->edit("global", "globalMountHeight");
        QCOMPARE(OperatorHand::type(edit, "12.5", false), QString());
        QVERIFY(edit->isModified());
        QCOMPARE(OperatorHand::type(m_bench->edit("global", "globalSensitivity"), "4", false),
                 QString());
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
