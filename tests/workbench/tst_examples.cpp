#include "host/json/value.h"
#include "tests/support/fixtures.h"
#include "tests/support/fulldisk.h"
#include "tests/support/rulestest.h"
#include "tests/support/workbenchprogram.h"

#include <sys/stat.h>

using kql::Json::Value;
using WorkbenchFiles::read;

namespace
{

const QString kPerimeter = ExampleFiles::folder();

QString session(const char* name)
{
    return Fixtures::path(QString("sessions/%1.jsonl").arg(name));
}

/// The steps of a case, in its window and with a picture, and a save.
QByteArray session(const Value& fixture)
{
    const Value& window = fixture["window"];
    QString steps = QString(R"({"do":"size","window":%1})")
                        .arg(window.isNull() ? "[1375,800]" : window.toCompactText());
    steps += "\n{\"do\":\"wait\",\"picture\":true}\n";
    for (int i = 0; i < fixture["steps"].size(); ++i)
        steps += fixture["steps"][i].toCompactText() + '\n';
    return steps.toUtf8() + R"({"do":"save","answer":"Yes"})";
}

/// Puts @p values where their names say, as "Rules.0.Name".
void put(Value& document, const Value& values)
{
    for (const QString& path : values.memberNames()) {
        Value* place = &document;
        for (const QString& part : path.split('.')) {
            bool isIndex = false;
            const int index = part.toInt(&isIndex);
            place = isIndex ? &(*place)[index] : &(*place)[part.toStdString()];
        }
        *place = values[path.toStdString()];
    }
}

} // namespace

/// The built workbench with the built plug-in, run as a script runs them.
class TstExamples : public RulesTest, private WorkbenchProgram
{
    Q_OBJECT

private slots:
    void saves_data()
    {
        QTest::addColumn<QStringList>("documents");
        QTest::addColumn<QString>("session");
        QTest::addColumn<QString>("saved");
        QVERIFY(!ExampleFiles::names().isEmpty());
        for (const QString& name : ExampleFiles::names()) {
            const QString folder = ExampleFiles::folder(name);
            QTest::newRow(qPrintable(name))
                << documents(folder) << folder + "session.jsonl" << folder + "saved.json";
            QTest::newRow(qPrintable(name + ", without a mouse"))
                << documents(folder) << folder + "keyboard.jsonl" << folder + "saved.json";
            for (const char* same : {"config.json", "saved.json"})
                QTest::newRow(qPrintable(name + ", " + same + " unchanged"))
                    << documents(folder, same) << ::session("save") << folder + same;
        }
        QTest::newRow("selection")
            << documents() << kPerimeter + "selection.jsonl" << kPerimeter + "selection-saved.json";
    }

    void saves()
    {
        QFETCH(const QStringList, documents);
        QFETCH(const QString, session);
        QFETCH(const QString, saved);
        const QString result = path("result.json");
        QFile::remove(result);
        const Outcome outcome =
            run(documents + QStringList{"--replay", session, "--result", result});
        QVERIFY2(outcome.status == SavedOrClosed, qPrintable(outcome.said));
        const Value written = read(result);
        QVERIFY2(written["channelAbilityPO"] == read(saved), qPrintable(written.toStyledText()));
    }

    void loadsAResult()
    {
        const QString first = path("first.json");
        QString config = kPerimeter + "config.json";
        for (const QString& result : {first, path("second.json")}) {
            const Outcome outcome =
                run({"--template", kPerimeter + "template.json", "--config", config, "--replay",
                     session("savethree"), "--result", result});
            QVERIFY2(outcome.status == SavedOrClosed, qPrintable(outcome.said));
            config = result;
        }
        QCOMPARE(read(config)["channelAbilityPO"], read(kPerimeter + "config.json"));
    }

    /// Opened later, a file is one of those that are loaded, and no output replaces it.
    void keepsWhatASessionLoads()
    {
        for (const char* name : {"opened.json", "opened.png"}) {
            const bool isPicture = QByteArray(name).endsWith("png");
            QVERIFY(QFile::copy(kPerimeter + "config.json", path(name)));
            const Outcome outcome = replay(
                file("load.jsonl",
                     ExampleFiles::contentOf(session(isPicture ? "loadpicture" : "loadopened"))),
                {isPicture ? "--screenshot" : "--result", path(name)});
            QVERIFY2(outcome.said.contains("would replace"), qPrintable(outcome.said));
            QCOMPARE(read(path(name)), read(kPerimeter + "config.json"));
        }
    }

    void refusesArguments_data()
    {
        Fixtures::addRows("arguments.json");
        QCOMPARE(::mkfifo(qPrintable(path("pipe.png")), 0600), 0);
    }

    /// "GOOD" and "EXAMPLE" stand for the example's documents and its folder.
    void refusesArguments()
    {
        QFETCH(const Value, fixture);
        const Value& files = fixture["files"];
        for (const QString& name : files.memberNames())
            file(qPrintable(name), files[name.toStdString()].asString().toUtf8());
        QString arguments = fixture["arguments"].asString();
        arguments.replace("GOOD", documents().join(' ')).replace("EXAMPLE/", kPerimeter);
        const Outcome outcome = run(arguments.split(' '));
        QVERIFY2(outcome.said.contains(QRegularExpression(fixture["says"].asString())),
                 qPrintable(outcome.said));
        QCOMPARE(outcome.status,
                 fixture.isMember("status") ? fixture["status"].asInt() : int(Unusable));
        // What is no regular file is not replaced, by no output.
        struct stat found = {};
        QCOMPARE(::stat(qPrintable(path("pipe.png")), &found), 0);
        QVERIFY(S_ISFIFO(found.st_mode));
    }

    void tellsThatHelpCannotBeWritten()
    {
        QProcess help;
        help.setStandardOutputFile("/dev/full");
        help.start(programs + "/rules-workbench", {"--help"});
        QVERIFY(help.waitForFinished());
        QCOMPARE(help.exitCode(), int(Unusable));
    }

    void keepsOldFilesOnAFullDisk()
    {
        FullDisk disk;
        for (const char* name : {"result.json", "screenshot.png"})
            WorkbenchFiles::write(disk.folder(), name, "before");
        WorkbenchFiles::write(disk.folder(), "record.jsonl", {});
        disk.fill();
        for (const char* name : {"result.json", "screenshot.png", "record.jsonl"}) {
            const QString output = "--" + QString(name).section('.', 0, 0);
            const Outcome outcome = replay(session("savewait"), {output, disk.path(name)});
            const bool isSession = output == QString("--record");
            QVERIFY2(outcome.said.contains(QRegularExpression(
                         QString(name) + ": (No space left|File too large).*; " +
                         (isSession ? "nothing more is recorded" : "the old file stands"))),
                     qPrintable(output + ": " + outcome.said));
            QCOMPARE(outcome.status, int(Unusable));
            QCOMPARE(ExampleFiles::contentOf(disk.path(name)),
                     QByteArray(isSession ? "" : "before"));
        }
    }

    void failsAtSteps_data() { Fixtures::addRows("failingsteps.json"); }

    /// At the last one.
    void failsAtSteps()
    {
        QFETCH(const Value, fixture);
        const Value& steps = fixture["steps"];
        QString text = "{\"do\":\"wait\",\"picture\":true}\n";
        for (int i = 0; i < steps.size(); ++i)
            text += steps[i].toCompactText() + '\n';
        const Outcome outcome = replay(file("steps.jsonl", text.toUtf8()));
        const QString failure = "steps.jsonl: line %1: .*" + fixture["says"].asString();
        QVERIFY2(outcome.said.contains(QRegularExpression(failure.arg(steps.size() + 1))),
                 qPrintable(outcome.said));
        QCOMPARE(outcome.status, int(StepFailed));
    }

    void knowsEveryStep()
    {
        const Outcome outcome = replay(session("everystep"));
        QVERIFY2(outcome.status == SavedOrClosed, qPrintable(outcome.said));
        QCOMPARE(QImage(path("step.png")).size(), QSize(1180, 800));
    }

    void isAsLargeAsTheDesktopSays()
    {
        for (const int percent : {100, 125, 150}) {
            environment.insert("QT_FONT_DPI", QString::number(96 * percent / 100));
            const Outcome outcome = replay(session("everystep"));
            QVERIFY2(outcome.status == SavedOrClosed, qPrintable(outcome.said));
            QCOMPARE(QImage(path("step.png")).size(), QSize(1180, 800) * percent / 100);
        }
        environment.remove("QT_FONT_DPI");
    }

    void showsWhatIsRefused()
    {
        const Outcome outcome = replay(session("refused"));
        QVERIFY2(outcome.status == SavedOrClosed, qPrintable(outcome.said));
    }

    void corrects_data() { Fixtures::addRows("correcting"); }

    /// On a picture of 1024 x 576 pixels one to the right is 8 of 8192, and nine down are 128.
    void corrects()
    {
        QFETCH(const Value, fixture);
        const QString folder = ExampleFiles::folder(fixture["example"].asString());
        Value expected = read(folder + "config.json");
        put(expected, fixture["given"]);
        const QByteArray config = expected.toStyledText().toUtf8();
        put(expected, fixture["saved"]);
        const QString name = fixture["session"].asString();
        const QString steps =
            name.isEmpty() ? file("steps.jsonl", session(fixture)) : session(qPrintable(name));
        const Outcome outcome =
            run({"--template", folder + "template.json", "--config", file("given.json", config),
                 "--replay", steps, "--result", path("moved.json")});
        QVERIFY2(outcome.status == SavedOrClosed, qPrintable(outcome.said));
        const Value written = read(path("moved.json"))["channelAbilityPO"];
        QVERIFY2(written == expected, qPrintable(written.toCompactText()));
    }

    void tellsThatTheOperatorLeft()
    {
        for (const char* steps : {"leave", "leaveloaded", "leavesaved"}) {
            const Outcome outcome = replay(session(steps), {"--result", "left.json"});
            QVERIFY2(outcome.status == LeftWithoutSaving, qPrintable(outcome.said));
            const Value left = read(path("left.json"));
            const bool isSaved = qstrcmp(steps, "leavesaved") == 0;
            QCOMPARE(left["result"].asInt(), isSaved ? 0 : -1);
            QCOMPARE(left.isMember("channelAbilityPO"), isSaved);
        }
        const Outcome again = replay(session("close"), {"--config", path("left.json")});
        QVERIFY2(again.status == SavedOrClosed, qPrintable(again.said));
    }

    void worksWithoutDisplay()
    {
#if !defined(Q_OS_UNIX) || defined(Q_OS_MACOS)
        QSKIP("there is always a display");
#endif
        const QScopedValueRollback<QProcessEnvironment> rollback(environment);
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(name);
        QCOMPARE(run(documents()).status, int(Unusable));
        const Outcome replayed = replay(session("close"));
        QVERIFY2(replayed.status == SavedOrClosed, qPrintable(replayed.said));
    }
};

QTEST_MAIN(TstExamples)
#include "tst_examples.moc"
