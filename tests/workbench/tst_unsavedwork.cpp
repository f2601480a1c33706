#include "host/api/rowcontract.h"
#include "tests/support/boxanswerer.h"
#include "tests/support/fixtures.h"
#include "tests/support/rulestest.h"
#include "tests/support/workbenchbench.h"
#include "tests/support/workbenchprogram.h"
#include "workbench/closequestion.h"
#include "workbench/documentopener.h"
#include "workbench/messagerecord.h"
#include "workbench/modulehost.h"
#include "workbench/sessionrecorder.h"

using kql::Json::Value;

namespace
{

const QByteArray kEdit = R"({"do":"set","scene":"rules","key":"ruleDwell","value":21})";
const QByteArray kUnfinished = R"({"do":"type","scene":"rules","key":"ruleDwell","text":"22"})";
const QByteArray kIncomplete = R"({"do":"click","scene":"rules","object":"addRule"})";
const QByteArray kPick = R"({"do":"pick","scene":"rules","entry":2})";
const QByteArray kDisable = R"({"do":"enable","scene":"rules","entry":1,"on":false})";
/// A corner is taken and moved by keys, and not let go.
const QByteArray kMovedByKeys = R"({"do":"press","at":[2300,4000]}
                                   {"do":"key","keys":"Escape","to":"picture"}
                                   {"do":"key","keys":"Right","to":"picture"}
                                   {"do":"key","keys":"Space","to":"picture"}
                                   {"do":"key","keys":"Down","times":9,"to":"picture"})";
const QByteArray kUndo = R"({"do":"key","keys":"Ctrl+Z","to":"picture"})";

/// A workbench that writes its results, and what it sends to the module.
class Bench : public WorkbenchBench
{
public:
    explicit Bench(const WorkbenchOptions& options) : WorkbenchBench(options)
    {
        QObject::connect(
            &window(), &WorkbenchWindow::sgnMessage, &boxes, [this](const MessageRecord& message) {
                const bool isSent = message.direction == MessageRecord::Direction::ToModule;
                messages.append((isSent ? ">" : "<") + QString::number(message.id));
            });
    }

    QString play(const QByteArray& step)
    {
        const QTemporaryDir folder;
        return WorkbenchBench::play(WorkbenchFiles::write(folder, "steps.jsonl", step));
    }
    QString shown(const char* key)
    {
        QWidget* const row = finder().row(finder().panel("rules"), QString(key));
        return row->property(RowContract::kValue).toString();
    }

    CloseQuestion& question = *new CloseQuestion(window());
    DocumentOpener& opener = *new DocumentOpener(window(), question);
    BoxAnswerer boxes{QMessageBox::Cancel};
    QStringList messages;
};

/// Chooses a file where one is asked for; without one it leaves the dialog.
struct FileChooser {
    explicit FileChooser(const QString& chosen = {}) : file(chosen)
    {
        QObject::connect(&timer, &QTimer::timeout, [this] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog && file.isEmpty())
                dialog->reject();
            if (!dialog || file.isEmpty())
                return;
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(file);
            dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
        });
        timer.start(20);
    }

    QString file;
    QTimer timer;
};

} // namespace

/// What a window with unsaved work lets go of, and what it asks before.
class TstUnsavedWork : public RulesTest
{
    Q_OBJECT

    QTemporaryDir m_folder;

    WorkbenchOptions withResult() const
    {
        WorkbenchOptions options = WorkbenchBench::example();
        options.resultFile = m_folder.filePath("result.json");
        QFile::remove(options.resultFile);
        return options;
    }

    /// How work goes, and what the module is told of it.
    const QMap<QString, std::function<void(Bench&)>> m_ways = {
        {">0", [](Bench& b) { b.window().close(); }},
        {">160", [](Bench& b) { b.opener.open(b.window().options()); }},
        {">160 ", [](Bench& b) { b.opener.openExample("tripwire"); }}};

private slots:
    void asksBeforeItGoes()
    {
        for (auto way = m_ways.begin(); way != m_ways.end(); ++way) {
            Bench bench(withResult());
            QVERIFY(bench.isReady());
            const auto go = [&](QMessageBox::StandardButton answer) {
                bench.messages.clear();
                bench.boxes.setAnswer(answer);
                way.value()(bench);
                return bench.boxes.takeBoxes().join('\n');
            };
            QCOMPARE(bench.play(kEdit), QString());
            QVERIFY(go(QMessageBox::Cancel).contains("What was edited"));
            QCOMPARE(bench.messages, QStringList());
            QVERIFY_BOTH(bench.window().isVisible(), bench.window().isEdited());
            QCOMPARE(bench.shown("ruleDwell"), QString("21"));

            // What cannot be saved stays, and is shown.
            QCOMPARE(bench.play(kIncomplete), QString());
            QVERIFY(go(QMessageBox::Save).contains("Error"));
            QCOMPARE(bench.messages, QStringList());
            QVERIFY_BOTH(bench.window().isVisible(), bench.window().isEdited());

            QVERIFY(!go(QMessageBox::Discard).isEmpty());
            QCOMPARE(bench.messages, QStringList(way.key().trimmed()));
            QVERIFY(!QFile::exists(bench.window().options().resultFile));
            QCOMPARE(bench.window().isVisible(), way.key() != ">0");
            QCOMPARE(go(QMessageBox::Cancel), QString());
        }
    }

    /// What is being typed, too.
    void savesBeforeItGoes()
    {
        for (auto way = m_ways.begin(); way != m_ways.end(); ++way) {
            Bench bench(withResult());
            QVERIFY(bench.isReady());
            QCOMPARE(bench.play(kUnfinished), QString());
            bench.messages.clear();
            bench.boxes.setAnswer(QMessageBox::Save);
            way.value()(bench);
            const QStringList boxes = bench.boxes.takeBoxes();
            QVERIFY2(boxes.size() == 2, qPrintable(boxes.join('\n')));
            QCOMPARE(bench.messages, QStringList({"<996", way.key().trimmed()}));
            const Value saved = WorkbenchFiles::read(m_folder.filePath("result.json"));
            QVERIFY2(saved.toCompactText().contains("22"), qPrintable(saved.toCompactText()));
            QVERIFY(!bench.window().isEdited());
        }
    }

    void aCornerOnItsWayIsWork()
    {
        Bench bench(withResult());
        QVERIFY(bench.isReady());
        SessionRecorder recorder(bench.window());
        QStringList steps;
        connect(&recorder, &SessionRecorder::sgnStep, this,
                [&](const Value& step) { steps.append(step["do"].asString()); });
        recorder.start();
        QCOMPARE(bench.play(kMovedByKeys), QString());
        QVERIFY(!bench.window().isEdited());
        QVERIFY(!bench.window().close());
        QVERIFY(bench.boxes.takeBoxes().join('\n').contains("What was edited"));
        QVERIFY_BOTH(bench.window().isEdited(), steps.last() == "finish");
        QCOMPARE(bench.play(kUndo), QString());
        QVERIFY2(!bench.window().isEdited(), "it is one step");
    }

    void asksForASaveThatIsInNoFile()
    {
        Bench bench(WorkbenchBench::example());
        QVERIFY(bench.isReady());
        QCOMPARE(bench.play(kEdit), QString());
        bench.boxes.setAnswer(QMessageBox::Yes);
        QTest::keyClick(&bench.window(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(bench.boxes.takeBoxes().join('\n').contains("running task"));
        QVERIFY_BOTH(bench.messages.contains("<996"), !bench.window().isEdited());
        bench.boxes.setAnswer(QMessageBox::Cancel);
        QVERIFY(!bench.window().close());
        QVERIFY(bench.boxes.takeBoxes().join('\n').contains("in no file"));
        bench.boxes.setAnswer(QMessageBox::Discard);
        QVERIFY(bench.window().close());
    }

    /// Nor does what cannot be written.
    void asksForASaveThatCouldNotBeWritten()
    {
        for (auto way = m_ways.begin(); way != m_ways.end(); ++way) {
            WorkbenchOptions options = WorkbenchBench::example();
            options.resultFile = m_folder.filePath("missing/result.json");
            Bench bench(options);
            QVERIFY(bench.isReady());
            QCOMPARE(bench.play(kEdit), QString());
            bench.boxes.setAnswer(QMessageBox::Yes);
            bench.window().pressSave();
            bench.boxes.takeBoxes();
            QVERIFY_BOTH(!bench.window().isEdited(), bench.window().isWindowModified());
            for (int i = 0; i < 2; ++i) {
                bench.messages.clear();
                bench.boxes.setAnswer(i == 0 ? QMessageBox::Cancel : QMessageBox::Discard);
                way.value()(bench);
                QVERIFY(bench.boxes.takeBoxes().join('\n').contains("in no file"));
                QCOMPARE(bench.messages, i == 0 ? QStringList() : QStringList(way.key().trimmed()));
            }
            QVERIFY(!bench.window().isVisible() || !bench.window().isWindowModified());
        }
    }

    /// Into the very file that is loaded next.
    void showsWhatItSavedBefore()
    {
        WorkbenchOptions options = WorkbenchBench::example();
        const QString copy = m_folder.filePath("copy.json");
        QVERIFY(QFile::copy(options.configFile, copy));
        options.configFile = copy;
        Bench bench(options);
        QVERIFY(bench.isReady());
        QCOMPARE(bench.play(kEdit), QString());
        const FileChooser chooser{copy};
        bench.boxes.setAnswer(QMessageBox::Save);
        bench.opener.open(options);
        QCOMPARE(bench.shown("ruleDwell"), QString("21"));
        QVERIFY(WorkbenchFiles::read(copy).isMember("result"));
    }

    /// The dialog that asks for another file is left, then used.
    void savesElsewhereWhatCouldNotBeWritten()
    {
        WorkbenchOptions options = WorkbenchBench::example();
        options.resultFile = m_folder.filePath("missing/result.json");
        Bench bench(options);
        QVERIFY(bench.isReady());
        FileChooser chooser;
        QCOMPARE(bench.play(kEdit), QString());
        bench.boxes.setAnswer(QMessageBox::Save);
        QVERIFY(!bench.window().close());
        QVERIFY_BOTH(!bench.window().isEdited(), bench.window().troubles().has(Trouble::Result));
        chooser.file = m_folder.filePath("elsewhere.json");
        QVERIFY(bench.window().close());
        QVERIFY(QFile::exists(chooser.file));
        QVERIFY(!bench.window().troubles().has(Trouble::Result));
    }

    /// By the rules window's own button: it asks about what was edited, but knows of no files.
    void asksBeforeItIsLeftByCancel()
    {
        Bench bench(WorkbenchBench::example());
        QVERIFY(bench.isReady());
        QCOMPARE(bench.play(kEdit), QString());
        bench.boxes.setAnswer(QMessageBox::Yes);
        bench.window().pressSave();
        QCOMPARE(bench.play(kUnfinished), QString());
        bench.finder().finishEdit();
        for (const auto answer : {QMessageBox::Cancel, QMessageBox::Discard}) {
            bench.messages.clear();
            bench.boxes.takeBoxes();
            bench.boxes.setAnswer(answer);
            QTest::mouseClick(bench.button("btnCancel"), Qt::LeftButton);
            QCoreApplication::sendPostedEvents();
            const QStringList boxes = bench.boxes.takeBoxes();
            QVERIFY2(boxes.size() == 2 && boxes.last().contains("in no file"),
                     qPrintable(boxes.join('\n')));
            const bool isLeft = answer == QMessageBox::Discard;
            QCOMPARE(bench.messages.contains(">0"), isLeft);
            QCOMPARE(bench.window().isVisible(), !isLeft);
            QCOMPARE(bench.window().isEdited(), !isLeft);
            QCOMPARE(bench.window().wasExited(), isLeft);
        }
        QVERIFY(bench.question.wasDiscarded());
        QString error;
        QVERIFY(bench.window().load(bench.window().options(), error));
        QVERIFY(!bench.window().wasExited());
    }

    void tellsInTheTitle()
    {
        Bench bench(withResult());
        QVERIFY(bench.isReady());
        const WorkbenchWindow& window = bench.window();
        QCOMPARE(window.windowTitle(), QString("perimeter/config.json[*] - Rules workbench"));
        QCOMPARE(window.windowFilePath(), WorkbenchBench::example().configFile);
        QVERIFY(!window.isWindowModified());
        QCOMPARE(bench.play(kEdit), QString());
        QTRY_VERIFY_WITH_TIMEOUT(window.isWindowModified(), kTryFor);
        QCOMPARE(bench.play(kUndo), QString());
        QTRY_VERIFY_WITH_TIMEOUT(!window.isWindowModified(), kTryFor);
        QCOMPARE(bench.play(kEdit), QString());
        bench.boxes.setAnswer(QMessageBox::Yes);
        bench.window().pressSave();
        QTRY_VERIFY_WITH_TIMEOUT(!window.isWindowModified(), kTryFor);
        // What was saved is not what is taken back.
        QCOMPARE(bench.play(kUndo), QString());
        QTRY_VERIFY_WITH_TIMEOUT(window.isWindowModified(), kTryFor);
        bench.window().moduleHost().close();
        QTRY_COMPARE_WITH_TIMEOUT(window.windowTitle(), QString("Rules workbench"), kTryFor);
        QVERIFY(!window.isWindowModified());
    }

    /// Rules that are only selected are work as well.
    void selectingIsEditing()
    {
        WorkbenchOptions options = withResult();
        options.selectionMode = true;
        Bench bench(options);
        QVERIFY_BOTH(bench.isReady(), !bench.window().isEdited());
        QCOMPARE(bench.play(kPick), QString());
        QVERIFY(!bench.window().isEdited());
        QCOMPARE(bench.play(kDisable), QString());
        QVERIFY(bench.window().isEdited());
    }

    void recordsASaveByKey()
    {
        Bench bench(withResult());
        QVERIFY(bench.isReady());
        SessionRecorder recorder(bench.window());
        QStringList steps;
        connect(&recorder, &SessionRecorder::sgnStep, this,
                [&](const Value& step) { steps.append(step["do"].asString()); });
        recorder.start();
        QTest::mouseMove(bench.button("btnSave"));
        bench.boxes.setAnswer(QMessageBox::Yes);
        QTest::keyClick(&bench.window(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(steps, QStringList({"size", "save"}));
    }

    void looksAroundWhereNothingCanBeChanged()
    {
        WorkbenchOptions options = WorkbenchBench::example();
        options.editable = false;
        Bench bench(options);
        QVERIFY(bench.isReady());
        QVERIFY2(bench.finder().notices().contains("Read-only"), "it says so");
        QWidget* const rules = bench.finder().panel("rules");
        auto* const view = bench.window().rulesWindow()->findChild<QScrollArea*>("sceneView");
        const QString first = bench.shown("ruleName");
        const auto answer = [&bench] {
            QString unfinished;
            const auto link =
                connect(&bench.window(), &WorkbenchWindow::sgnMessage,
                        [&](const MessageRecord& message) { unfinished = message.p2; });
            bench.window().moduleHost().queryUnfinishedDraw("sample", "1");
            QCoreApplication::sendPostedEvents();
            disconnect(link);
            return unfinished;
        };
        const QString unfinished = answer();
        const auto press = [&](QWidget* widget) {
            QWidget* const window = bench.window().rulesWindow();
            QTest::mouseClick(window->window()->windowHandle(), Qt::LeftButton, {},
                              widget->mapTo(window->window(), widget->rect().center()));
        };
        press(bench.finder().entryButtons(rules, false).at(1));
        const QString second = bench.shown("ruleName");
        QVERIFY(second != first);
        QTest::mouseClick(bench.surface(), Qt::LeftButton, {},
                          bench.surface()->paneRect(0).center());
        QCOMPARE(answer(), unfinished);
        QTest::keyClick(bench.surface(), Qt::Key_Left);
        QCOMPARE(bench.shown("ruleName"), first);

        // Buttons keep the wheel to themselves, other disabled widgets hand it on.
        const auto wheel = [&](QWidget* over, int notches) {
            const QPoint at = view->mapToGlobal(view->rect().center());
            QWheelEvent event(over->mapFromGlobal(at), at, {}, {0, notches * 120}, {}, {},
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(over, &event);
            return view->verticalScrollBar()->value();
        };
        const int below = wheel(bench.finder().entryButtons(rules, false).at(0), -3);
        QVERIFY_BOTH(below > 0, wheel(bench.window().rulesWindow(), 1) < below);
        QTest::keyClick(bench.surface(), Qt::Key_End);
        QCOMPARE(view->verticalScrollBar()->value(), view->verticalScrollBar()->maximum());
        QWidget* const global = bench.finder().panel("global");
        press(global->findChild<QWidget*>(RowContract::kMask));
        QVERIFY(global->property(RowContract::kSelected).toBool());
        press(global->findChild<QWidget*>(RowContract::kTitleBar));
        QVERIFY(global->property(RowContract::kFolded).toBool());
        QVERIFY_BOTH(!bench.window().isEdited(), bench.window().close());
        QCOMPARE(bench.boxes.takeBoxes(), QStringList());
    }

    void asksNothingOfScripts()
    {
        WorkbenchOptions options = WorkbenchBench::example();
        options.screenshotFile = m_folder.filePath("window.png");
        Bench bench(options);
        QCOMPARE(bench.play(kEdit), QString());
        bench.opener.open(bench.window().options());
        QVERIFY(!bench.window().isEdited());
        QCOMPARE(bench.play(kEdit), QString());
        QVERIFY_BOTH(bench.window().isEdited(), bench.window().close());
        QCOMPARE(bench.boxes.takeBoxes(), QStringList());

        WorkbenchProgram program;
        program.environment.insert("XDG_CONFIG_HOME", program.path("settings"));
        const QString steps = program.file("steps.jsonl", kEdit + "\n{\"do\":\"load\"}\n" + kEdit +
                                                              "\n{\"do\":\"close\"}\n" +
                                                              "{\"do\":\"load\"}\n" + kEdit);
        const auto outcome = program.replay(steps);
        QVERIFY2(outcome.status == WorkbenchProgram::SavedOrClosed, qPrintable(outcome.said));
        QVERIFY(!QFile::exists(program.path("settings")));
    }
};

QTEST_MAIN(TstUnsavedWork)
#include "tst_unsavedwork.moc"
