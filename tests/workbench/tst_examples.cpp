#include "host/json/value.h"
#include "tests/support/fulldisk.h"
#include "tests/support/rulestest.h"
#include "tests/support/workbenchprogram.h"

#include <QImage>
#include <QScopedValueRollback>

#include <sys/stat.h>

using kql::Json::Value;
using WorkbenchFiles::read;

namespace
{

const QString kPerimeter = ExampleFiles::folder();

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
        const QString save = file("save.jsonl", "{\"do\":\"save\",\"answer\":\"Yes\"}\n"
                                                "{\"do\":\"expect\",\"posted\":{\"result\":0}}\n");
        for (const QString& name : ExampleFiles::names()) {
            const QString folder = ExampleFiles::folder(name);
            QTest::newRow(qPrintable(name))
                << documents(folder) << folder + "session.jsonl" << folder + "saved.json";
            for (const char* same : {"config.json", "saved.json"})
                QTest::newRow(qPrintable(name + ", " + same + " unchanged"))
                    << documents(folder, same) << save << folder + same;
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
        const QString save =
            file("save.jsonl", "{\"do\":\"wait\",\"picture\":true}\n"
                               "{\"do\":\"expect\",\"scene\":\"rules\",\"entries\":3}\n"
                               "{\"do\":\"save\",\"answer\":\"Yes\"}\n");
        const QString first = path("first.json");
        QString config = kPerimeter + "config.json";
        for (const QString& result : {first, path("second.json")}) {
            const Outcome outcome = run({"--template", kPerimeter + "template.json", "--config",
                                         config, "--replay", save, "--result", result});
            QVERIFY2(outcome.status == SavedOrClosed, qPrintable(outcome.said));
            config = result;
        }
        QCOMPARE(read(config)["channelAbilityPO"], read(kPerimeter + "config.json"));
        // Opened later, the file is one of those that are loaded.
        const QString opened = path("opened.json");
        QVERIFY(QFile::copy(kPerimeter + "config.json", opened));
        const QString open = file("open.jsonl", "{\"do\":\"load\",\"config\":\"opened.json\"}\n"
                                                "{\"do\":\"save\",\"answer\":\"Yes\"}\n");
        const Outcome outcome =
            run(documents() + QStringList{"--replay", open, "--result", opened});
        QVERIFY2(outcome.said.contains("would replace"), qPrintable(outcome.said));
        QCOMPARE(read(opened), read(kPerimeter + "config.json"));
        const QString picture = path("opened.png");
        QVERIFY(QFile::rename(opened, picture));
        const QString close = file("png.jsonl", "{\"do\":\"load\",\"config\":\"opened.png\"}\n");
        const Outcome shown =
            run(documents() + QStringList{"--replay", close, "--screenshot", picture});
        QVERIFY2(shown.said.contains("would replace"), qPrintable(shown.said));
        QCOMPARE(read(picture), read(kPerimeter + "config.json"));
    }

    void refusesArguments()
    {
        const auto check = [this](const QString& arguments, const char* says,
                                  int status = Unusable) {
            const Outcome outcome = run(arguments.split(' '));
            QVERIFY2(outcome.said.contains(QRegularExpression(says)),
                     qPrintable(arguments + ": " + outcome.said));
            QVERIFY2(outcome.status == status, qPrintable(arguments));
        };
        const QString good = documents().join(' ') + ' ';
        const QString config = "--config " + kPerimeter + "config.json --template ";
        check("--help", "--editable [\\s\\S]*presence\\s+locks", SavedOrClosed);
        check("--version", "rules-workbench \\d", SavedOrClosed);
        check("template.json", "Unexpected argument: template.json");
        check("--type one", "--type takes a number, not \"one\"");
        check(config + file("t.json", "{}") + " --result " + path("./t.json"),
              "--result would replace .*t\\.json");
        // What is no regular file is not replaced, by no output.
        const QString pipe = path("pipe.png");
        QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
        for (const char* output : {"result", "screenshot", "record"})
            check(good + "--" + output + ' ' + pipe, "pipe\\.png: it is no regular file");
        struct stat found = {};
        QVERIFY(::stat(qPrintable(pipe), &found) == 0 && S_ISFIFO(found.st_mode));
        for (const char* two : {"--result %1 --screenshot %1", "--record %1 --result ./same",
                                "--replay %1 --record ./same"})
            check(good + QString(two).arg(file("same", "{\"do\":\"close\"}")),
                  "--(screenshot|result|record) would replace .*same");
        check(good + "--config " + file("u.json", R"({"result": -1, "algorithmId": "a"})"),
              "u.json:1:1: nothing was saved");
        check("--editable maybe", "takes true or false, not \"maybe\"");
        check(config + "none.json", "none.json: No such file");
        check(config + file("a.json", "{\n \"a\": 1,\n ]\n"), "a.json:3:2: \\S");
        check(config + file("b.json", "{}"), "b.json:1:1: .* \"configDescription\"");
        check(good + "--config " + file("c.json", "{} d"), "c.json:1:4: \\S");
        check(good + "--replay none.jsonl", "none.jsonl: No such file");
        check(good + "--replay " + file("e.jsonl", "{\"do\":\"save\"}\n\n{]\n"),
              "e.jsonl:3:2: \\S");
        check(good + "--replay " + file("f.jsonl", "{\"to\":1}"), "f.jsonl:1:1: .*\"do\"");
        check(good + "--plugin " + file("g.so", "text"), "g.so");
        check(good + "--result none/result.json --replay " +
                  file("h.jsonl", "{\"do\":\"cancel\",\"answer\":\"Yes\"}\n"),
              "none/result.json: \\S");
        // A variable that is not set.
        for (const char* name : {"template", "config", "source", "picture", "plugin", "result",
                                 "screenshot", "replay", "record"})
            check(QString("--replay none --") + name + '=', "takes the name of a file");
        for (const QString& empty : {file("empty.jsonl", "\n"), QString("/dev/null")})
            check(good + "--replay " + empty,
                  "(empty.jsonl: there is no step|null: it is no file)");
        for (const char* endless : {"template", "config", "replay"})
            check(good + "--" + endless + " /dev/full", "/dev/full: it is no file");
        const QString picture = file("p.png", "");
        check(good + "--channel-source 2=" + picture + " --screenshot " + picture,
              "--screenshot would replace .*p\\.png");
        check(good + "--result " + path("none.json") + " --replay " +
                  file("refused.jsonl", "{\"do\":\"close\"}\n"),
              "none.json: nothing was saved");
        QProcess help;
        help.setStandardOutputFile("/dev/full");
        help.start(programs + "/rules-workbench", {"--help"});
        QVERIFY(help.waitForFinished());
        QCOMPARE(help.exitCode(), int(Unusable));
    }

    void keepsOldFilesOnAFullDisk()
    {
        FullDisk disk;
        const QString session = file("full.jsonl", "{\"do\":\"save\",\"answer\":\"Yes\"}\n"
                                                   "{\"do\":\"wait\",\"ms\":1}\n");
        for (const char* name : {"result.json", "screenshot.png"})
            WorkbenchFiles::write(disk.folder(), name, "before");
        WorkbenchFiles::write(disk.folder(), "record.jsonl", {});
        disk.fill();
        for (const char* name : {"result.json", "screenshot.png", "record.jsonl"}) {
            const QString output = "--" + QString(name).section('.', 0, 0);
            const Outcome outcome =
                run(documents() + QStringList{"--replay", session, output, disk.path(name)});
            const bool isSession = output == QLatin1String("--record");
            QVERIFY2(outcome.said.contains(QRegularExpression(
                         QString(name) + ": (No space left|File too large).*; " +
                         (isSession ? "nothing more is recorded" : "the old file stands"))),
                     qPrintable(output + ": " + outcome.said));
            QCOMPARE(outcome.status, int(Unusable));
            QCOMPARE(ExampleFiles::contentOf(disk.path(name)),
                     QByteArray(isSession ? "" : "before"));
        }
    }

    void failsAtSteps()
    {
        // Two steps are parted by a bar; the last one fails.
        const auto check = [this](QByteArray steps, const char* says) {
            steps.prepend("\"wait\",\"picture\":true|");
            const int last = steps.count('|') + 1;
            const QByteArray session = "{\"do\":" + steps.replace("|", "}\n{\"do\":") + "}\n";
            const Outcome outcome =
                run(documents() + QStringList{"--replay", file("steps.jsonl", session)});
            const QRegularExpression failure(
                QString("steps.jsonl: line %1: .*%2").arg(last).arg(says));
            QVERIFY2(outcome.said.contains(failure), qPrintable(steps + ": " + outcome.said));
            QVERIFY2(outcome.status == StepFailed, steps.constData());
        };
        const QByteArray rules = "\"scene\":\"rules\",";
        check(R"("dance")", "there is no step \"dance\"");
        check(R"("select","scene":"moon")", "there is no section \"moon\"");
        check("\"click\"," + rules + R"("object":"fuc9")", "no such widget");
        check("\"pick\"," + rules + R"("entry":4)", "no such widget");
        check("\"enable\"," + rules + R"("entry":1,"on":false)", "no such widget");
        check("\"set\"," + rules + R"("key":"speed","value":1)", "no row \"speed\"");
        check("\"set\"," + rules + R"("key":"ruleAction","value":"Fly")", "no option \"Fly\"");
        check("\"set\"," + rules + R"("key":"ruleCrossing","value":"Both")", "it is hidden");
        check(R"("set","scene":"global","key":"globalShadow","value":false)", "it is covered");
        check("\"click\"," + rules + "\"object\":\"addRule\"|\"pick\"," + rules + "\"entry\":1",
              "it is disabled");
        check(R"("load","editable":true|"save")", "it is hidden");
        check(R"("press","button":"left","at":[8300,100])", "not on the picture");
        check(R"("press","at":[-10,-10])", "not on the picture");
        check(R"("press","button":"left")", "\"at\" takes a position");
        check(R"("move","at":[5])", "\"at\" takes a position");
        check(R"("press","button":"middle","at":[5,5])", "\"button\" takes");
        check(R"("size","window":[8193,10])", "\"window\" takes .*1 to 8192");
        check(R"("size")", "\"window\" takes");
        check("\"fold\"," + rules + R"("folded":true)", "\"fold\" takes true or false");
        check(R"("wait","ms":1|"save")", "a question came up.*Please confirm");
        for (const char* wait : {"", ",\"ms\":-5", ",\"ms\":600001", ",\"picture\":\"yes\""})
            check("\"wait\"" + QByteArray(wait), "takes .*\"ms\" of 0 to 600000");
        check(R"("load","config":"none.json")", "none.json: No such file");
        check(R"("screenshot","file":"none/step.png")", "step.png: No such file");
        check(R"("expect","box":"Saved")", "the last box is null, not \"Saved\"");
        check("\"expect\"," + rules + "\"hint\":\"Draw\"", "the hint is \".*\", not \"Draw\"");
        check("\"expect\"," + rules + "\"entries\":2", "the number of entries is 3, not 2");
        check("\"expect\"," + rules + "\"current\":2", "the current entry is 1, not 2");
        check(R"("expect","row":"ruleDwell","value":16)", "value is \"15\", not 16");
        check(R"("expect","row":"ruleDwell","visible":false)", "visibility is true, not false");
        check(R"("expect","row":"ruleDwell","enabled":false)", "enabled state is true, not false");
        check(R"("expect","row":"ruleDwell","marked":true)", "mark is false, not true");
        check(R"("expect","notice":null|"expect","notice":"")", "\"notice\" takes a text .*null");
        check(R"("expect","posted":"all")", "\"posted\" takes members, or null");
        check(R"("expect","scene":"rules")", "there is nothing to expect");
        check(R"("expect","entrys":3)", "there is no expectation \"entrys\"");
        for (const char* member : {"value", "visible", "enabled", "marked"})
            check("\"expect\",\"current\":1,\"" + QByteArray(member) + "\":true",
                  "of a \"row\" only");
        check(R"("expect","notice":"lost")", "the notices are \"\", not \"lost\"");
        check(R"("query"|"expect","posted":{"unFinishedDraw":true})", "Draw is false, not true");
        check(R"("query"|"expect","posted":null)", "a message was posted");
    }

    void knowsEveryStep()
    {
        const QString session = RULES_SOURCE_DIR "/tests/workbench/everystep.jsonl";
        const Outcome outcome = run(documents() + QStringList{"--replay", session});
        QVERIFY2(outcome.status == SavedOrClosed, qPrintable(outcome.said));
        QCOMPARE(QImage(path("step.png")).size(), QSize(1180, 800));
    }

    void tellsThatTheOperatorLeft()
    {
        const QByteArray leave("{\"do\":\"cancel\",\"answer\":\"Yes\"}\n"
                               "{\"do\":\"expect\",\"posted\":{\"result\":-1}}\n");
        const QByteArray save("{\"do\":\"save\",\"answer\":\"Yes\"}\n");
        const QByteArray load("{\"do\":\"load\"}\n");
        const QStringList replay = documents() + QStringList{"--result", "left.json", "--replay"};
        for (const QByteArray& steps : {leave, save + load + leave, save + leave}) {
            const Outcome outcome = run(replay + QStringList{file("leave.jsonl", steps)});
            QVERIFY2(outcome.status == LeftWithoutSaving, qPrintable(outcome.said));
            const Value left = read(path("left.json"));
            const bool isSaved = steps == save + leave;
            QCOMPARE(left["result"].asInt(), isSaved ? 0 : -1);
            QCOMPARE(left.isMember("channelAbilityPO"), isSaved);
        }
        const QString close = file("close.jsonl", "{\"do\":\"close\"}\n");
        const Outcome again =
            run(documents() + QStringList{"--config", path("left.json"), "--replay", close});
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
        const QString session = file("close.jsonl", "{\"do\":\"close\"}\n");
        const Outcome replayed = run(documents() + QStringList{"--replay", session});
        QVERIFY2(replayed.status == SavedOrClosed, qPrintable(replayed.said));
    }
};

QTEST_MAIN(TstExamples)
#include "tst_examples.moc"
