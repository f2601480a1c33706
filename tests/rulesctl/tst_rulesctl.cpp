#include "tests/support/fulldisk.h"
#include "tests/support/mailbox.h"
#include "tests/support/rulesctlprogram.h"
#include "tests/support/rulestest.h"
#include "tests/support/sampledocuments.h"
#include "tools/rulesctl/command.h"
#include "tools/rulesctl/documents/rawmember.h"
#include "tools/rulesctl/documents/textposition.h"

#include <memory>

using kql::Json::Value;
using Outcome = RulesctlProgram::Outcome;

static Value read(const QString& path)
{
    return Mailbox::json(QString::fromUtf8(ExampleFiles::contentOf(path)));
}

/// The command line as scripts use it: what it takes, what it answers, how it ends.
class TstRulesctl : public RulesTest
{
    Q_OBJECT

private slots:
    void readsTheExamples_data();
    void readsTheExamples();
    void tellsFailuresInAllForms();
    void tellsWhatCannotBeWritten();
    void refusesArguments_data();
    void refusesArguments();
    void tellsWhatCannotBeRead_data();
    void tellsWhatCannotBeRead();
    void answersLines();
    void answersEachLineBeforeInputEnds();
    void keepsTheOrderOnAllCores();
    void replacesWholeFilesOnly();
    void endsWhereOutputIsNotTaken();
    void endsWhereStreamsAreClosed_data();
    void endsWhereStreamsAreClosed();
    void speaksEnglishUnlessAskedOtherwise();
    void tellsOfAllOptions();
    void completesWords_data();
    void completesWords();

private:
    RulesctlProgram m_program;
};

void TstRulesctl::readsTheExamples_data()
{
    QTest::addColumn<QString>("folder");
    for (const QString& name : ExampleFiles::names())
        QTest::newRow(qPrintable(name)) << ExampleFiles::folder(name);
}

void TstRulesctl::readsTheExamples()
{
    QFETCH(const QString, folder);
    for (const QString& name : {folder + "config.json", folder + "saved.json"}) {
        const QStringList arguments{"--template", folder + "template.json", "--config", name};
        const Outcome checked = m_program.run(QStringList("check") + arguments);
        QCOMPARE(checked.said + checked.out, name + ": ok\n");
        QCOMPARE(checked.status, RulesctlProgram::Clean);
        const Outcome converted = m_program.run(QStringList("convert") + arguments);
        QCOMPARE(converted.status, RulesctlProgram::Clean);
        QVERIFY(Mailbox::json(converted.out) == read(name));
    }
}

void TstRulesctl::tellsFailuresInAllForms()
{
    using namespace SampleDocuments;
    const QString rulesTemplate = m_program.file("sample.json", kTemplate);
    QByteArray twins = config(rule("Gate") + ',' + rule("Gate"));
    twins.replace("\"Span\": [1, 5]", "\"Span\": [1]");
    const QString file = m_program.file("twins.json", twins);
    const QStringList arguments{"check", "--template", rulesTemplate, "--config", file};
    const Outcome text = m_program.run(arguments);
    QCOMPARE(text.status, RulesctlProgram::Differs);
    const Value json = Mailbox::json(m_program.run(arguments + QStringList{"--format=json"}).out);
    QCOMPARE(json["summary"].toCompactText(), QString(R"({"ok":0,"fails":1,"unreadable":0})"));
    QCOMPARE(json["template"].asString(), rulesTemplate);
    const Value& failures = json["results"][0]["failures"];
    QCOMPARE(failures.toCompactText(),
             QString(R"([{"scene":"global","message":"Span:The minimum value cannot be empty.",)"
                     R"("entry":1,"name":null,"key":"span"},)"
                     R"({"scene":"rules","message":"Duplicate rule name exists","entry":2,)"
                     R"("name":"Gate","key":null}])"));
    QCOMPARE(text.out, file + ": fails: global 1: Span:The minimum value cannot be empty.; "
                              "rules 2 \"Gate\": Duplicate rule name exists\n");
}

void TstRulesctl::tellsWhatCannotBeWritten()
{
    Value rulesTemplate = Mailbox::json(SampleDocuments::kTemplate);
    rulesTemplate.removeMember("configTemplate");
    const QStringList arguments{
        "--template", m_program.file("skeletonless.json", rulesTemplate.toStyledText().toUtf8()),
        "--config",
        m_program.file("gate.json", SampleDocuments::config(SampleDocuments::rule("Gate")))};
    const QString why = R"(The template has no "configTemplate" to write into.)";
    const Outcome checked = m_program.run(QStringList{"check", "--format", "json"} + arguments);
    const Value failures = Mailbox::json(checked.out)["results"][0]["failures"];
    QCOMPARE(failures.size(), 1);
    QCOMPARE(failures[0]["message"].asString(), why);
    QVERIFY_BOTH(failures[0]["scene"].isNull(), failures[0]["entry"].isNull());
    const QString target = m_program.path("unwritten.json");
    const Outcome converted = m_program.run(QStringList{"convert", "-o", target} + arguments);
    QCOMPARE(converted.status, RulesctlProgram::Differs);
    QCOMPARE(converted.said, arguments.last() + ": " + why + '\n');
    QVERIFY(!QFile::exists(target));
}

void TstRulesctl::refusesArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("said");
    const QStringList check = RulesctlProgram::withTemplate("check");
    const QStringList convert = RulesctlProgram::withTemplate("convert");
    QTest::newRow("no command") << QStringList() << "a command is missing";
    QTest::newRow("unknown command") << QStringList{"chekc"} << "no command \"chekc\"";
    QTest::newRow("no template") << QStringList{"check", "--config", "a"}
                                 << "--template is missing";
    QTest::newRow("two templates") << check + QStringList{"--template", "b"} << "twice";
    QTest::newRow("unknown option") << check + QStringList{"--cofnig", "a"} << "option --cofnig";
    QTest::newRow("no documents") << check << "--config or --jsonl is missing";
    QTest::newRow("empty list") << check + QStringList{"--config"} << "--config takes F…";
    QTest::newRow("two inputs") << check + QStringList{"--jsonl", "--config", "a"} << "beside";
    QTest::newRow("no algorithm") << check + QStringList{"--algorithm", "1", "--jsonl"} << "N:CODE";
    QTest::newRow("a sign alone") << check + QStringList{"--algorithm", "-:A", "--jsonl"}
                                  << "N:CODE";
    QTest::newRow("no number") << check + QStringList{"--algorithm", "x:A", "--jsonl"} << "N:CODE";
    QTest::newRow("unknown format")
        << check + QStringList{"--jsonl", "--format", "xml"} << "\"xml\"";
    QTest::newRow("lines as text")
        << check + QStringList{"--jsonl", "--format", "text"} << "beside";
    QTest::newRow("lines as a page")
        << RulesctlProgram::withTemplate("diff") + QStringList{"--jsonl", "--format", "html"}
        << "--format html does not go beside --jsonl";
    QTest::newRow("unknown language")
        << check + QStringList{"--jsonl", "--language", "tlh"} << "\"tlh\"";
    QTest::newRow("value of a flag") << check + QStringList{"--jsonl=yes"} << "takes no value";
    QTest::newRow("lines to a file") << convert + QStringList{"--jsonl", "-o", "a"} << "beside";
    QTest::newRow("many to one") << convert + QStringList{"--config", "a", "b"}
                                 << "a folder with -o";
    QTest::newRow("two of a name") << convert + QStringList{"--config", "x/a", "y/a", "-o", "z"}
                                   << "two files are to be written to z/a";
    QTest::newRow("template replaced")
        << convert + QStringList{"--config", "a", "-o", convert.last()} << "would be replaced";
}

void TstRulesctl::refusesArguments()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, said);
    const Outcome outcome = m_program.run(arguments);
    QCOMPARE(outcome.status, RulesctlProgram::Unusable);
    QVERIFY2(outcome.said.startsWith("rulesctl: ") && outcome.said.contains(said),
             qPrintable(outcome.said));
    QCOMPARE(outcome.out, QString());
    QVERIFY(!QFile::exists(m_program.path("z")));
}

void TstRulesctl::tellsWhatCannotBeRead_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("said"); // behind its name
    QTest::newRow("missing") << "none.json"
                             << ": No such file or directory";
    QTest::newRow("empty") << m_program.file("empty.json", "") << ":1:1: The document is empty.";
    QTest::newRow("no JSON") << m_program.file("text.json", "{\n \"äöü\": x}")
                             << ":2:9: Invalid value.";
    QTest::newRow("no object") << m_program.file("list.json", "[]")
                               << ":1:1: the document is no object";
    QTest::newRow("not saved") << m_program.file("left.json", R"({"result": -1, "algorithmId": 1})")
                               << ":1:1: nothing was saved, so there is no configuration";
    QTest::newRow("device") << "/dev/zero"
                            << ": it is no file";
    QFile large(m_program.path("large.json"));
    if (large.open(QIODevice::WriteOnly))
        large.resize(qint64{200} << 20);
    QTest::newRow("200 MB") << large.fileName() << ": it is longer than 16777216 characters";
    QDir(m_program.folder.path()).mkdir("folder");
    QTest::newRow("folder without any") << m_program.path("folder") << ": it is a folder";
}

void TstRulesctl::tellsWhatCannotBeRead()
{
    QFETCH(const QString, file);
    QFETCH(const QString, said);
    const QString good = ExampleFiles::folder() + "config.json";
    const Outcome outcome = m_program.run(RulesctlProgram::withTemplate("check") +
                                          QStringList{"--format", "json", "--config", file, good});
    QCOMPARE(outcome.status, RulesctlProgram::Unusable);
    QCOMPARE(outcome.said, file + said + "\n2 files: 1 ok, 0 fail, 1 unreadable\n");
    const Value results = Mailbox::json(outcome.out)["results"];
    QCOMPARE(results[0]["status"].asString(), QString("unreadable"));
    QVERIFY(said.endsWith(results[0]["error"]["reason"].asString()));
    QCOMPARE(results[1]["status"].asString(), QString("ok"));
    const Outcome converted = m_program.run(RulesctlProgram::withTemplate("convert") +
                                            QStringList{"--config", file, good, "-o", "converted"});
    QCOMPARE(converted.status, RulesctlProgram::Unusable);
    QVERIFY2(converted.said.startsWith(file + said), qPrintable(converted.said));
    QVERIFY(QFile::remove(m_program.path("converted/config.json")));
    const Outcome asTemplate = m_program.run({"check", "--template", file, "--config", good});
    QCOMPARE(asTemplate.status, RulesctlProgram::Unusable);
    QVERIFY(asTemplate.said.startsWith(file + ':'));
}

void TstRulesctl::answersLines()
{
    const QByteArray config = ExampleFiles::contentOf(ExampleFiles::folder() + "config.json");
    const QByteArray compact = Mailbox::json(config).toCompactText().toUtf8();
    const QByteArray tooLong =
        "{\"id\":2,\"config\":{\"a\":\"" + QByteArray(17 << 20, 'x') + "\"}}";
    const QByteArray input = R"({"config": )" + compact + R"(, "id" : 1.50E0 })" + "\n \r\n" +
                             tooLong + "\n[1]\n" + R"({"id":null,"config":{}})" + '\n' +
                             R"({"id":"a\u0041/*","config":{"result":0,"algorithmId":1}})" + "\n{" +
                             "\n\xEF\xBB\xBF" + R"({"id":"","config":)" + compact + '}';
    const Outcome outcome =
        m_program.run(RulesctlProgram::withTemplate("convert") + QStringList{"--jsonl"}, input);
    QCOMPARE(outcome.status, RulesctlProgram::Clean);
    QStringList lines = outcome.out.split('\n');
    QCOMPARE(lines.takeLast(), QString());
    QCOMPARE(lines.size(), 7);
    QVERIFY(lines[0].startsWith(R"({"id":1.50E0,"status":"ok","config":{)"));
    QVERIFY(Mailbox::json(lines[0])["config"] == Mailbox::json(config));
    for (const auto& [line, number, reason] :
         {std::tuple(1, 3, "it is longer than"), std::tuple(2, 4, "the line is no object"),
          std::tuple(3, 5, "\"id\" is no text"), std::tuple(5, 7, "Missing a name")}) {
        const Value answer = Mailbox::json(lines[line]);
        QVERIFY(lines[line].startsWith(
            QString(R"({"id":null,"line":%1,"status":"unreadable","error":{"file":"-",)")
                .arg(number)));
        QCOMPARE(answer["error"]["line"].asInt(), number);
        QVERIFY2(answer["error"]["reason"].asString().startsWith(reason), qPrintable(lines[line]));
    }
    QVERIFY(lines[4].startsWith(R"({"id":"a\u0041/*","status":"unreadable","config":null,)"));
    QVERIFY(lines[6].startsWith(R"({"id":"","status":"ok")"));
    QCOMPARE(QString::fromStdString(std::string(RawMember::find(
                 R"( {"a":{"id":[1,"}"]} /* "id":2 */,"id"/**/: -3.0/**/,"b":[{"id":4}]})", "id"))),
             QString("-3.0"));
    QCOMPARE(TextPosition::of("\xEF\xBB\xBF{\n\"\xC3\xA4\xF0\x9F\x98\x80x", 12).column, 4);
}

void TstRulesctl::answersEachLineBeforeInputEnds()
{
    QProcess process;
    process.start(RULES_BIN_DIR "/rulesctl",
                  RulesctlProgram::withTemplate("check") + QStringList{"--jsonl"});
    for (int i = 1; i <= 3; ++i) {
        process.write("{\"id\":" + QByteArray::number(i) + ",\"config\":{}}\n");
        QTRY_VERIFY_WITH_TIMEOUT(process.canReadLine(), kTryFor);
        QVERIFY(process.readLine().startsWith("{\"id\":" + QByteArray::number(i) + ','));
    }
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished(kTryFor));
    QCOMPARE(process.exitCode(), 0);
}

void TstRulesctl::keepsTheOrderOnAllCores()
{
    QDir(m_program.folder.path()).mkpath("many");
    const QByteArray config = ExampleFiles::contentOf(ExampleFiles::folder() + "config.json");
    const QByteArray unnamed = QByteArray(config).replace("\"Stay\"", "\"Leave\"");
    QString expected;
    constexpr int kFiles = 500;
    for (int i = 0; i < kFiles; ++i) {
        // Some take far longer than others.
        const QString name = QString("many/camera %1.json").arg(i, 3, 10, QChar('0'));
        m_program.file(qPrintable(name),
                       i % 7 == 0 ? QByteArray("{") : unnamed + QByteArray(i % 50 * 1000, ' '));
        if (i % 7 != 0)
            expected += name + ": ok\n";
    }
    // In the order of code points, not of UTF-16, and only what is called so.
    m_program.file("many/\xEF\xBF\xBD.json", config);
    m_program.file("many/\xF0\x9F\x98\x80.json", config);
    m_program.file("many/notes.txt", "no document");
    expected += QString::fromUtf8("many/\xEF\xBF\xBD.json: ok\nmany/\xF0\x9F\x98\x80.json: ok\n");
    m_program.environment.insert("LC_ALL", "C");
    const Outcome outcome =
        m_program.run(RulesctlProgram::withTemplate("check") + QStringList{"--config", "many"});
    QCOMPARE(outcome.out, expected);
    QCOMPARE(outcome.status, RulesctlProgram::Unusable);
    QVERIFY(outcome.said.endsWith("502 files: 430 ok, 0 fail, 72 unreadable\n"));
    const QStringList toFolder{"--config", "many", "-o", "converted"};
    const Outcome converted = m_program.run(RulesctlProgram::withTemplate("convert") + toFolder);
    QCOMPARE(converted.status, RulesctlProgram::Unusable);
    QCOMPARE(QDir(m_program.path("converted")).entryList(QDir::Files).size(), 430);
}

void TstRulesctl::replacesWholeFilesOnly()
{
    const QByteArray config = ExampleFiles::contentOf(ExampleFiles::folder() + "config.json");
    const QByteArray result =
        R"({"result": 0, "algorithmId": "a", "channelAbilityPO": )" + config + "}";
    FullDisk disk;
    const QString file = m_program.file(disk.path("result.json"), result);
    const QStringList inPlace =
        RulesctlProgram::withTemplate("convert") + QStringList{"--config", file, "-o", file};
    disk.fill();
    const Outcome full = m_program.run(inPlace);
    QCOMPARE(full.status, RulesctlProgram::Unusable);
    QVERIFY2(full.said.contains("the old file stands"), qPrintable(full.said));
    QCOMPARE(ExampleFiles::contentOf(file), result);
    disk.makeRoom();
    QCOMPARE(m_program.run(inPlace).status, RulesctlProgram::Clean);
    QVERIFY(read(file) == Mailbox::json(result));
    // Elsewhere it is the configuration alone.
    const QString apart = m_program.path("apart.json");
    const QStringList toFile{"--config", file, "-o", apart};
    QCOMPARE(m_program.run(RulesctlProgram::withTemplate("convert") + toFile).status,
             RulesctlProgram::Clean);
    QVERIFY(read(apart) == Mailbox::json(config));
}

void TstRulesctl::endsWhereOutputIsNotTaken()
{
    const QString config = ExampleFiles::folder() + "config.json";
    for (const char* command : {"check", "convert"}) {
        const Outcome outcome =
            m_program.run(RulesctlProgram::withTemplate(command) + QStringList{"--config", config},
                          {}, "/dev/full");
        QCOMPARE(outcome.status, RulesctlProgram::Unusable);
        QVERIFY(outcome.said.contains("No space left on device"));
    }
    QProcess shell;
    const QString command = RulesctlProgram::withTemplate("check").join(' ') + " --config" +
                            (' ' + config).repeated(5000);
    const QString script = m_program.file(
        "pipe.sh",
        QString("{ " RULES_BIN_DIR "/rulesctl %1; echo $? >&2; } | head -1").arg(command).toUtf8());
    shell.start("sh", {script});
    QVERIFY(shell.waitForFinished(kTryFor));
    QVERIFY(shell.readAllStandardError().endsWith("2\n"));
}

void TstRulesctl::endsWhereStreamsAreClosed_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("said");
    const QString closed = "rulesctl: output was not written: it is closed\n";
    QTest::newRow("output") << "check --config config.json >&-" << closed;
    QTest::newRow("input") << "check --jsonl <&-"
                           << "-: it is closed\n";
    QTest::newRow("all") << "convert --config config.json -o new.json <&- >&- 2>&-" << QString();
}

/// What they would have taken must not get into files that are opened in their place.
void TstRulesctl::endsWhereStreamsAreClosed()
{
    QFETCH(const QString, words);
    QFETCH(const QString, said);
    const QByteArray config = ExampleFiles::contentOf(ExampleFiles::folder() + "saved.json");
    m_program.file("config.json", config);
    m_program.file("template.json",
                   ExampleFiles::contentOf(ExampleFiles::folder() + "template.json"));
    QProcess shell;
    shell.setWorkingDirectory(m_program.folder.path());
    shell.start("sh", {"-c", RULES_BIN_DIR "/rulesctl " + words.section(' ', 0, 0) +
                                 " --template template.json " + words.section(' ', 1)});
    QVERIFY(shell.waitForFinished(kTryFor));
    QCOMPARE(QString(shell.readAllStandardError()), said);
    QCOMPARE(shell.exitCode(), 2);
    if (said.isEmpty())
        QVERIFY(read(m_program.path("new.json")) == Mailbox::json(config));
}

void TstRulesctl::speaksEnglishUnlessAskedOtherwise()
{
    const QStringList arguments =
        RulesctlProgram::withTemplate("check") +
        QStringList{"--config", m_program.file("nothing.json", "{}"), "none.json"};
    m_program.environment.insert("LC_ALL", "de_DE.UTF-8");
    m_program.environment.insert("LANGUAGE", "de");
    const Outcome english = m_program.run(arguments);
    QVERIFY2(english.out.contains("minimum value cannot be empty"), qPrintable(english.out));
    QVERIFY(english.said.contains("No such file"));
    const Outcome german = m_program.run(arguments + QStringList{"--language", "de"});
    QVERIFY2(!german.out.contains("cannot be empty"), qPrintable(german.out));
    QCOMPARE(german.status, RulesctlProgram::Unusable);
}

void TstRulesctl::tellsOfAllOptions()
{
    const QString all = m_program.run({"--help"}).out;
    const QString reference = ExampleFiles::contentOf(RULES_SOURCE_DIR "/docs/rulesctl.md");
    for (const Command* command : Commands::all()) {
        const QString name = command->name;
        QVERIFY2(all.contains("\n  " + name + ' '), command->name);
        QVERIFY2(reference.contains("\n## " + name + '\n'), command->name);
        const Outcome help = m_program.run({name, "--help"});
        QCOMPARE(help.status, RulesctlProgram::Clean);
        for (const QString& line : help.out.split('\n'))
            QVERIFY2(line.size() <= 80 || line.contains("rulesctl " + name), qPrintable(line));
        for (const OptionSpec& option : Commands::optionsOf(*command))
            QVERIFY2(help.out.contains(QString("--") + option.name), option.name);
    }
    // Written by "rulesctl --man > tools/rulesctl/rulesctl.1".
    QCOMPARE(QString(ExampleFiles::contentOf(RULES_SOURCE_DIR "/tools/rulesctl/rulesctl.1")),
             m_program.run({"--man"}).out);
}

void TstRulesctl::completesWords_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QStringList>("offered");
    QTest::newRow("commands") << "c" << QStringList{"check", "convert"};
    QTest::newRow("options") << "check --c" << QStringList{"--config"};
    QTest::newRow("formats") << "check --format j" << QStringList{"json"};
    QTest::newRow("files") << "check --template ./onl" << QStringList{"./only.json"};
}

void TstRulesctl::completesWords()
{
    QFETCH(const QString, words);
    QFETCH(const QStringList, offered);
    m_program.file("only.json", "{}");
    const QString script = R"(PATH=%1:$PATH; . %2/tools/rulesctl/rulesctl.bash
        COMP_WORDS=(rulesctl %3); COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
        _rulesctl; printf '%s\n' "${COMPREPLY[@]}")";
    QProcess bash;
    bash.setWorkingDirectory(m_program.folder.path());
    bash.start("bash", {"-c", QString(script)
                                  .replace("%1", RULES_BIN_DIR)
                                  .replace("%2", RULES_SOURCE_DIR)
                                  .replace("%3", words)});
    QVERIFY(bash.waitForFinished(kTryFor));
    QCOMPARE(QString(bash.readAllStandardError()), QString());
    QCOMPARE(QString(bash.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts), offered);
}

QTEST_GUILESS_MAIN(TstRulesctl)
#include "tst_rulesctl.moc"
