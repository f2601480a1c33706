#include "tests/support/fixtures.h"
#include "tests/support/fulldisk.h"
#include "tests/support/rulestest.h"
#include "tests/support/workbenchbench.h"
#include "tests/support/workbenchprogram.h"
#include "workbench/autosave.h"
#include "workbench/boxwatcher.h"
#include "workbench/closequestion.h"
#include "workbench/documentopener.h"
#include "workbench/restorebar.h"
#include "workbench/workbench.h"

#include <memory>

using kql::Json::Value;

namespace
{

constexpr int kPatience = 60000; // milliseconds

const QByteArray kWork = Fixtures::contentOf("sessions/work.jsonl");

WorkbenchOptions gate()
{
    WorkbenchOptions options = WorkbenchBench::example();
    options.channelId = "C7";
    options.channelName = "Gate %1 <b>7</b>";
    return options;
}

QStringList namesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files);
}

/// A workbench with the plug-in and the work kept in a folder.
class Bench : public WorkbenchBench
{
public:
    explicit Bench(const QString& folder, const WorkbenchOptions& options = gate())
        : WorkbenchBench(options), m_autosave(std::make_unique<Autosave>(window(), folder))
    {
    }

    void end() { m_autosave.reset(); }

    /// Why the steps could not be done; empty when they were.
    QString play(const QByteArray& steps)
    {
        const QTemporaryDir folder;
        return WorkbenchBench::play(WorkbenchFiles::write(folder, "work.jsonl", steps));
    }

    void press(const char* button)
    {
        BoxWatcher boxes;
        boxes.begin(QString("Yes"));
        QTest::mouseClick(WorkbenchBench::button(button), Qt::LeftButton);
        QCoreApplication::processEvents();
    }

    RestoreBar* bar()
    {
        auto* const bar = window().findChild<RestoreBar*>();
        return bar && bar->isVisible() ? bar : nullptr;
    }
    QString offered() { return bar() ? bar()->findChild<QLabel*>()->text() : QString(); }
    void answer(const char* button)
    {
        QTest::mouseClick(bar()->findChild<QAbstractButton*>(QLatin1String(button)),
                          Qt::LeftButton);
    }

private:
    std::unique_ptr<Autosave> m_autosave;
};

/// What the crashing program does: works, and then waits for its end.
int workUntilKilled(const QString& folder)
{
    Bench bench(folder);
    const QString error = bench.isReady() ? bench.play(kWork) : QString("not ready");
    if (!error.isEmpty())
        qFatal("%s", qPrintable(error));
    return QCoreApplication::exec();
}

/// Another process of this program, at work in a folder until it is killed.
class Worker
{
public:
    explicit Worker(const QString& folder)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.start(QCoreApplication::applicationFilePath(), {"--work-in", folder});
    }
    ~Worker() { kill(); }
    bool isRunning() { return m_process.state() == QProcess::Running; }
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

QByteArray contentOf(const QString& folder)
{
    QByteArray content;
    for (const QString& name : QDir(folder).entryList({"*.jsonl"}, QDir::Files))
        content += ExampleFiles::contentOf(folder + '/' + name);
    return content;
}

} // namespace

/// Work of a killed process is offered and restored; nothing is left of what is in a file.
class TstAutosave : public RulesTest
{
    Q_OBJECT

    void prepareTest() override { m_home = std::make_unique<QTemporaryDir>(); }

    QString folder() const { return m_home->filePath("autosave"); }
    QString resultFile() const { return m_home->filePath("result.json"); }
    bool isKept() const { return contentOf(folder()).contains("globalSensitivity"); }
    WorkbenchOptions withResult() const
    {
        WorkbenchOptions options = gate();
        options.resultFile = resultFile();
        return options;
    }
    void leaveBehind(const QByteArray& content, const QByteArray& name = "1-1.jsonl")
    {
        QVERIFY(QDir().mkpath(folder()));
        WorkbenchFiles::write(*m_home, ("autosave/" + name).constData(), content);
    }

    std::unique_ptr<QTemporaryDir> m_home;

private slots:
    void restoresWhatAKilledProcessLeft()
    {
        Value wanted;
        {
            Bench bench(folder(), withResult());
            QVERIFY(bench.isReady());
            QCOMPARE(bench.play(kWork), QString());
            bench.press("btnSave");
            QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(resultFile()), kTryFor);
            wanted = WorkbenchFiles::read(resultFile());
            QVERIFY(QFile::remove(resultFile()));
        }
        Worker worker(folder());
        QTRY_VERIFY_WITH_TIMEOUT(isKept(), kPatience);
        {
            Bench bench(folder());
            QVERIFY2(!bench.bar(), "the process lives");
        }
        worker.kill();
        for (const QString& name : namesIn(folder()).filter(QRegularExpression("jsonl$")))
            QVERIFY(
                !(QFile::permissions(folder() + '/' + name) &
                  (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther)));
        // Other documents are loaded now; the work brings its own back.
        WorkbenchOptions other = withResult();
        other.channelId = "other";
        other.configFile.clear();
        Bench bench(folder(), other);
        QVERIFY(bench.isReady());
        QVERIFY2(bench.offered().contains("channel \"Gate %1 <b>7</b>\", perimeter/template.json,"),
                 qPrintable(bench.offered()));
        bench.answer("restore");
        const QString own = QString::number(QCoreApplication::applicationPid());
        QTRY_VERIFY_WITH_TIMEOUT(namesIn(folder()).filter(own) == namesIn(folder()), kPatience);
        QVERIFY(!bench.bar());
        QTRY_VERIFY2_WITH_TIMEOUT(isKept(), "restored work is not saved yet", kPatience);
        bench.press("btnSave");
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(resultFile()), kTryFor);
        QCOMPARE(WorkbenchFiles::read(resultFile()).toStyledString(), wanted.toStyledString());
        QCOMPARE(namesIn(folder()), QStringList());
    }

    void keepsOnlyWhatIsInNoFile()
    {
        enum Ending { Saved, SavedToNoFile, Unwritable, Left, LoadedAgain, Ended };
        const QByteArray more(
            R"({"do":"select","scene":"global"}
               {"do":"set","scene":"global","key":"globalSensitivity","value":3})");
        const QByteArray again(R"({"do":"select","scene":"rules"}
                                  {"do":"click","scene":"rules","object":"delete"})");
        for (const Ending ending : {Saved, SavedToNoFile, Left, LoadedAgain, Ended, Unwritable}) {
            WorkbenchOptions options = ending == Saved ? withResult() : gate();
            if (ending == Unwritable)
                options.resultFile = m_home->filePath("missing/result.json");
            Bench bench(folder(), options);
            QVERIFY_BOTH(bench.isReady(), !bench.bar());
            QCOMPARE(namesIn(folder()), QStringList());
            QCOMPARE(bench.play(more), QString());
            QTRY_VERIFY_WITH_TIMEOUT(isKept(), kTryFor);
            QString error;
            if (ending == Saved || ending == SavedToNoFile || ending == Unwritable)
                bench.press("btnSave");
            // What was saved, but is in no file, leaving does not take back either.
            if (ending == Left || ending == Unwritable)
                bench.press("btnCancel");
            else if (ending == LoadedAgain)
                QVERIFY(bench.window().load(bench.window().options(), error));
            if (ending == Ended || ending == Unwritable)
                bench.end();
            QCOMPARE(isKept(), ending == SavedToNoFile || ending == Unwritable);
            if (ending != Saved)
                continue;
            // What comes after a save is kept with what it builds on; nothing is saved again.
            QCOMPARE(bench.play(again), QString());
            QTRY_VERIFY_WITH_TIMEOUT(isKept(), kTryFor);
            QVERIFY(!contentOf(folder()).contains("save"));
        }
    }

    void discardsAndRefuses()
    {
        leaveBehind(kWork);
        {
            Bench bench(folder());
            QVERIFY(bench.bar());
            // New work is not given up for old without a question.
            QCOMPARE(bench.play(R"({"do":"click","scene":"rules","object":"delete"})"), QString());
            BoxWatcher boxes;
            boxes.begin(QString("No"));
            bench.answer("restore");
            QVERIFY_BOTH(boxes.lastText(), bench.bar());
            bench.answer("discard");
            QTRY_VERIFY_WITH_TIMEOUT(!bench.bar(), kTryFor);
        }
        QCOMPARE(namesIn(folder()), QStringList());
        for (const QByteArray& damaged :
             {QByteArray("{\"do\":\"set\",\"sce"), QByteArray("\0\xff", 2), QByteArray(),
              QByteArray("{\"do\":\"load\",\"template\":\"/missing <b>%1</b>.json\"}\n"),
              QByteArray("{\"do\":\"load\",\"template\":\"changed\",\"digest\":\"0\"}\n"),
              QByteArray("{\"do\":\"press\",\"at\":[1e99,null]}\n{\"do\":7}\n")}) {
            leaveBehind(damaged);
            Bench bench(folder());
            QVERIFY(bench.bar());
            bench.answer("restore");
            if (!damaged.isEmpty())
                QTRY_VERIFY2_WITH_TIMEOUT(bench.offered().startsWith("Not all could be restored: "),
                                          damaged.constData(), kPatience);
            if (damaged.contains("missing"))
                QVERIFY2(bench.offered().contains("/missing <b>%1</b>.json"),
                         qPrintable(bench.offered()));
            if (damaged.contains("changed"))
                QVERIFY(bench.offered().contains("are not what they were"));
            QTRY_COMPARE_WITH_TIMEOUT(contentOf(folder()), damaged, kTryFor);
        }
    }

    /// What was read is what the steps are done to, whatever is in the file by then.
    void knowsTheDocumentsThatWereRead()
    {
        WorkbenchOptions options = gate();
        options.configFile = m_home->filePath("config.json");
        QVERIFY(QFile::copy(gate().configFile, options.configFile));
        {
            WorkbenchBench loaded(options);
            QVERIFY(loaded.isReady() && QFile::resize(options.configFile, 0));
            const Autosave autosave(loaded.window(), folder());
            QCOMPARE(loaded.play(Fixtures::path("sessions/work.jsonl")), QString());
            QTRY_VERIFY_WITH_TIMEOUT(isKept(), kTryFor);
            leaveBehind(contentOf(folder()));
        }
        Bench bench(folder());
        QVERIFY(bench.bar());
        bench.answer("restore");
        QVERIFY2(bench.offered().contains("are not what they were"), qPrintable(bench.offered()));
    }

    void opensNothingWhileItRestores()
    {
        leaveBehind(kWork);
        Bench bench(folder());
        QVERIFY(bench.bar());
        DocumentOpener opener(bench.window(), *new CloseQuestion(bench.window()));
        bench.answer("restore");
        opener.openExample("tripwire");
        QCOMPARE(bench.window().options().templateFile, gate().templateFile);
        QTRY_VERIFY_WITH_TIMEOUT(!bench.window().isReplaying(), kPatience);
        QVERIFY_BOTH(!bench.bar(), bench.window().isEdited());
    }

    void sweepsUpAfterTheDeadOnly()
    {
        leaveBehind("half", "2-2.jsonl.aB3xYz");
        QLockFile alive(folder() + "/2-2.jsonl.lock");
        QVERIFY(alive.tryLock());
        const QByteArray lock = ExampleFiles::contentOf(folder() + "/2-2.jsonl.lock");
        const QByteArray dead = "2147483647" + lock.mid(lock.indexOf('\n'));
        leaveBehind(dead, "1-1.jsonl.lock");
        leaveBehind("half", "1-1.jsonl.aB3xYz");
        leaveBehind("", "3-3.jsonl.lock");
        leaveBehind("half", "3-3.jsonl.aB3xYz");
        leaveBehind(kWork, "3-3.jsonl");
        leaveBehind(dead, "4-4.jsonl.lock");
        // Killed before its owner was in it.
        leaveBehind("", "5-5.jsonl.lock");
        for (const char* other : {"1-1.jsonl.backups", "notes-1.jsonl.backup", "notes.lock"})
            leaveBehind("mine", other);
        Bench bench(folder());
        QVERIFY(bench.bar());
        QCOMPARE(namesIn(folder()), QStringList({"1-1.jsonl.backups", "2-2.jsonl.aB3xYz",
                                                 "2-2.jsonl.lock", "3-3.jsonl", "3-3.jsonl.lock",
                                                 "notes-1.jsonl.backup", "notes.lock"}));
    }

    void saysThatItCannotBeWritten()
    {
        FullDisk disk;
        const QString folder = disk.path("autosave");
        Bench bench(folder, gate());
        const auto* const trouble = bench.window().findChild<QLabel*>("trouble");
        QVERIFY_BOTH(bench.isReady(), trouble);
        QCOMPARE(bench.play(kWork), QString());
        const auto kept = [&] { return contentOf(folder).count("globalSensitivity"); };
        QTRY_COMPARE_WITH_TIMEOUT(kept(), 1, kTryFor);
        const QString more = WorkbenchFiles::write(
            *m_home, "more.jsonl",
            R"({"do":"set","scene":"global","key":"globalSensitivity","value":4})");
        disk.fill();
        const QSize size = bench.window().size();
        QCOMPARE(bench.WorkbenchBench::play(more), QString());
        QTRY_VERIFY_WITH_TIMEOUT(trouble->isVisible(), kTryFor);
        QVERIFY2(trouble->text().contains("; the old file stands"), qPrintable(trouble->text()));
        QCOMPARE(kept(), 1);
        QCOMPARE(bench.window().size(), size);
        disk.makeRoom();
        QTRY_COMPARE_WITH_TIMEOUT(kept(), 2, kTryFor);
        QVERIFY(!trouble->isVisible());
    }

    void replaysNeitherReadNorWriteIt()
    {
        leaveBehind(kWork);
        WorkbenchProgram program;
        program.environment.insert("XDG_DATA_HOME", m_home->path());
        const QString kept = m_home->filePath("rules-workbench/autosave");
        QVERIFY(QDir().mkpath(m_home->filePath("rules-workbench")));
        QVERIFY(QDir().rename(folder(), kept));
        const QStringList before = namesIn(kept);
        const QString session = program.file("work.jsonl", kWork);
        const auto outcome = program.run(WorkbenchProgram::documents() << "--replay" << session);
        QVERIFY2(outcome.status == WorkbenchProgram::SavedOrClosed, qPrintable(outcome.said));
        QCOMPARE(namesIn(kept), before);
        QCOMPARE(contentOf(kept), kWork);

        // Nor does who only wants a picture of the window.
        const QByteArray usual = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", m_home->path().toLocal8Bit());
        WorkbenchOptions options = gate();
        options.screenshotFile = m_home->filePath("window.png");
        bool isOffered = true;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&isOffered] {
            for (QWidget* widget : QApplication::topLevelWidgets()) {
                auto* const window = qobject_cast<WorkbenchWindow*>(widget);
                if (!window)
                    continue;
                isOffered = window->findChild<RestoreBar*>();
                window->close();
            }
        });
        timer.start(500);
        const int status = Workbench(options).run();
        usual.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", usual);
        QVERIFY_BOTH(status == Workbench::SavedOrClosed, !isOffered);
        QVERIFY(QFile::exists(options.screenshotFile));
        QCOMPARE(namesIn(kept), before);
    }
};

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--work-in") == 0)
        return workUntilKilled(QString::fromLocal8Bit(argv[2]));
    TstAutosave test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_autosave.moc"
