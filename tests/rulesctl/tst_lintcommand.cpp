#include "tests/support/mailbox.h"
#include "tests/support/rulesctlprogram.h"
#include "tests/support/rulestest.h"

using kql::Json::Value;
using Outcome = RulesctlProgram::Outcome;

namespace
{

const auto kFixtures = QStringLiteral(RULES_SOURCE_DIR "/tests/rulesctl/lint/");

QByteArray templateText()
{
    return ExampleFiles::contentOf(ExampleFiles::folder() + "template.json");
}

QString finding(const Value& list, int index)
{
    return list[index].toCompactText();
}

} // namespace

/// What lint answers scripts, and how it ends.
class TstLintCommand : public RulesTest
{
    Q_OBJECT

private slots:
    void tellsInAllForms();
    void findsConfigurationsInResults();
    void answersLines();
    void comparesWithAnOlderTemplate();
    void tellsOfTooMuch();
    void refuses_data();
    void refuses();

private:
    QStringList lint(const QString& file) const { return {"lint", "--template", file}; }

    RulesctlProgram m_program;
};

void TstLintCommand::tellsInAllForms()
{
    QByteArray misspelt = templateText();
    misspelt.replace("\"facade\": \"directLine\"", "\"facade\": \"directline\"");
    const QString file = m_program.file("misspelt.json", misspelt);
    const QString config = ExampleFiles::folder() + "config.json";
    const Outcome text = m_program.run(lint(file) + QStringList{"--config", config, config});
    QCOMPARE(text.status, RulesctlProgram::Differs);
    QVERIFY2(text.out.startsWith(file +
                                 ":113:54: error: \"directline\" is no spelling that is read "
                                 "here; did you mean \"directLine\"? [unknown-value]\n"),
             qPrintable(text.out));
    QCOMPARE(text.said, QString("2 files: 0 clean, 2 with findings, 0 unreadable\n"));
    const Outcome json = m_program.run(lint(file) + QStringList{"--format", "json"});
    const Value answer = Mailbox::json(json.out);
    QCOMPARE(answer["summary"].toCompactText(), QString(R"({"errors":1,"warnings":0})"));
    QCOMPARE(answer["results"].toCompactText(), QString("[]"));
    QCOMPARE(finding(answer["findings"], 0),
             QString(R"({"code":"unknown-value","severity":"error","document":"template",)"
                     R"("pointer":"/configItems/ruleArrow/facade","line":113,"column":54,)"
                     R"("found":"directline","expected":["region","line","directLine","rect",)"
                     R"("parallelogram","inputBoxNumber","checkbox","radioButton","bool",)"
                     R"("numericalInterval"],"suggestion":"directLine","message":"\"directline\" )"
                     R"(is no spelling that is read here; did you mean \"directLine\"?"})"));
}

void TstLintCommand::findsConfigurationsInResults()
{
    const QString result = m_program.file(
        "result.json",
        "{\"result\": 0, \"algorithmId\": \"a\",\n \"channelAbilityPO\": {\"Vers\": 1}}");
    const QString missing = m_program.path("missing.json");
    const Outcome outcome =
        m_program.run(RulesctlProgram::withTemplate("lint") +
                      QStringList{"--config", result, missing, "--format=json"});
    QCOMPARE(outcome.status, RulesctlProgram::Unusable);
    QVERIFY(outcome.said.startsWith(missing + ": "));
    const Value results = Mailbox::json(outcome.out)["results"];
    QCOMPARE(results[0]["status"], Value("findings"));
    QCOMPARE(finding(results[0]["findings"], 0),
             QString(R"({"code":"value-dropped","severity":"error","document":"config",)"
                     R"("pointer":"/Vers","line":2,"column":31,"found":1,"expected":null,)"
                     R"("suggestion":null,"message":"a save drops this"})"));
    QCOMPARE(results[1]["status"], Value("unreadable"));
    QCOMPARE(results[1]["error"]["file"], Value(missing));
}

void TstLintCommand::answersLines()
{
    const QByteArray input = "{\"config\": {\"Version\": \"2.4\"}, \"id\": \"a\"}\n\n[]\n"
                             "{\"id\": 2.0, \"config\": {\"Version\": \"\xC3\xA9\", \"x\": 1}}\n";
    const Outcome outcome =
        m_program.run(RulesctlProgram::withTemplate("lint") + QStringList{"--jsonl"}, input);
    QCOMPARE(outcome.status, RulesctlProgram::Clean);
    const QStringList lines = outcome.out.split('\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines[0], QString(R"({"id":"a","status":"clean","findings":[],"error":null})"));
    QVERIFY(lines[1].startsWith(R"({"id":null,"line":3,"status":"unreadable")"));
    QVERIFY(lines[2].startsWith(R"({"id":2.0,"status":"findings","findings":[)"));
    const Value findings = Mailbox::json(lines[2])["findings"];
    QCOMPARE(findings.size(), 2);
    QCOMPARE(findings[1]["line"], Value(4));
    QCOMPARE(findings[1]["column"], Value(45));
}

void TstLintCommand::comparesWithAnOlderTemplate()
{
    QByteArray newer = templateText();
    newer.replace("\"Config.Speed\", \"type\": \"int\"", "\"Config.Speed\", \"type\": \"float\"");
    const QString file = m_program.file("newer.json", newer);
    const QString older = ExampleFiles::folder() + "template.json";
    QCOMPARE(m_program.run(lint(file) + QStringList{"--against", older}).out, QString());
    const Outcome back = m_program.run(lint(older) + QStringList{"--against", file});
    QVERIFY2(back.out.contains("value-changed") && back.out.count('\n') == 1, qPrintable(back.out));
    QCOMPARE(back.status, RulesctlProgram::Differs);
}

/// Lint says where, and what it did not read therefore; other commands say that they cannot go on.
void TstLintCommand::tellsOfTooMuch()
{
    const QString large = kFixtures + "limit/choices.json";
    const Outcome found = m_program.run(lint(large));
    QVERIFY2(found.out.contains("[limit]"), qPrintable(found.out));
    QCOMPARE(found.status, RulesctlProgram::Differs);
    const QStringList config{"--config", ExampleFiles::folder() + "config.json"};
    const Outcome unread = m_program.run(lint(large) + config);
    QVERIFY2(unread.said.startsWith(config.last() + ": not read: "), qPrintable(unread.said));
    QCOMPARE(unread.status, RulesctlProgram::Differs);
    const QString twin = kFixtures + "limit/choices.twin.json";
    const Outcome newer = m_program.run(lint(large) + QStringList{"--against", twin});
    QCOMPARE(newer.out, found.out);
    const Outcome older = m_program.run(lint(twin) + QStringList{"--against", large});
    QCOMPARE(older.said, large + ": the template is too large\n");
    QCOMPARE(older.status, RulesctlProgram::Unusable);
    QCOMPARE(m_program.run(lint(large) + QStringList{"--jsonl"}, "{}\n").status,
             RulesctlProgram::Unusable);
    QCOMPARE(m_program.run(QStringList{"check", "--template", large} + config).status,
             RulesctlProgram::Unusable);
}

void TstLintCommand::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QStringList lint = RulesctlProgram::withTemplate("lint");
    const QString config = ExampleFiles::folder() + "config.json";
    QTest::newRow("no template") << QStringList{"lint", "--template", config};
    QTest::newRow("no older template") << lint + QStringList{"--against", config};
    QTest::newRow("a folder") << lint + QStringList{"--against", ExampleFiles::folder()};
    QTest::newRow("two inputs") << lint + QStringList{"--jsonl", "--config", config};
    QTest::newRow("nothing to tell it in")
        << lint + QStringList{"--jsonl", "--against", lint.last()};
    QTest::newRow("unknown format") << lint + QStringList{"--format", "html"};
}

void TstLintCommand::refuses()
{
    QFETCH(const QStringList, arguments);
    const Outcome outcome = m_program.run(arguments, "{}\n");
    QCOMPARE(outcome.status, RulesctlProgram::Unusable);
    QCOMPARE(outcome.out, QString());
    QVERIFY(!outcome.said.isEmpty());
}

QTEST_MAIN(TstLintCommand)
#include "tst_lintcommand.moc"
