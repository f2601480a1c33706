#include "tests/support/fixtures.h"
#include "tests/support/rulesctlprogram.h"
#include "tests/support/rulestest.h"

namespace
{

/// Rules of these names that may be saved.
QByteArray configOf(const QStringList& names)
{
    QByteArrayList rules;
    for (const QString& name : names)
        rules.append("{\"Name\": \"" + name.toUtf8() +
                     "\", \"Size\": [1, 9], \"Area\": [[0, 0], [9, 0], [9, 9]]}");
    return "{\"Rules\": [" + rules.join(", ") + "]}";
}

} // namespace

/// The page that rulesctl report makes; tools/try-report.py looks at it in a browser.
class TestReport : public RulesTest
{
    Q_OBJECT

private slots:
    void prepareTest() override;
    void cards();
    void clean();
    void refusals();

private:
    RulesctlProgram m_program;
    QStringList m_words{"report", "--template", Fixtures::path("rulesctl/template.json")};
};

void TestReport::prepareTest()
{
    QDir(m_program.path(".")).mkdir("fleet");
    m_program.file("fleet/a<b.json", configOf({"</script><script>alert(1)"}));
    m_program.file("fleet/c.json", configOf({"Twin", "TWIN", "Twin"}));
    m_program.file("fleet/d.json", configOf({"Gate"}).replace("\"Size\"", "\"By\": 1, \"Size\""));
    m_program.file("fleet/e.json", "{\n]");
}

/// One after another, whatever the names say.
void TestReport::cards()
{
    const QString again = "fleet/../fleet/c.json";
    const auto outcome =
        m_program.run(m_words + QStringList{"--config", "fleet", again, "-o", "fleet.html"});
    QCOMPARE(outcome.status, 2);
    QVERIFY(outcome.said.contains("fleet/e.json:2:1: "));
    const QByteArray page = m_program.contentOf("fleet.html");
    QCOMPARE(page.count("<article "), 4);
    QCOMPARE(page.count("<svg "), 3);
    QCOMPARE(page.count("<script>"), 1);
    QCOMPARE(page.count("</script>"), 4);
    QVERIFY(page.contains("<h2 title=\"fleet/a&lt;b.json\">a&lt;b.json</h2><b>ok</b>"));
    QVERIFY(page.contains("data-find=\"fleet/a&lt;b.json\n&lt;/script&gt;&lt;script&gt;alert(1)"));
    QVERIFY(page.indexOf(">c.json</h2><b>fails</b>") > page.indexOf(">a&lt;b.json</h2>"));
    QVERIFY(page.contains("<li class=\"failure\">rules 3 &quot;Twin&quot;: Duplicate rule name"));
    QVERIFY(page.contains("<article class=\"ok findings\""));
    QVERIFY(page.contains("<li class=\"finding\">value-dropped /Rules/0/By: "));
    QVERIFY(page.contains("<article class=\"unreadable\""));
    QVERIFY(page.contains("2 may be saved, 1 fail the check, 1 cannot be read."));
    QByteArray elsewhere = page;
    elsewhere.replace("http://www.w3.org/", "");
    QVERIFY(!elsewhere.contains("http:") && !elsewhere.contains("https:"));
}

void TestReport::clean()
{
    const QString file = m_program.file(
        "good.json",
        R"({"Rules": [{"Name": "A", "Size": [1, 9], "Area": [[0, 0], [9, 0], [9, 9]]}]})");
    const auto outcome = m_program.run(m_words + QStringList{"--config", file, "-o", "good.html"});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.said, QString());
    QCOMPARE(outcome.out, QString());
}

void TestReport::refusals()
{
    for (const QStringList& words : {QStringList{"--config", "fleet"},
                                     {"-o", "x.html"},
                                     {"--config", "fleet", "-o", "gone/x.html"}}) {
        const auto outcome = m_program.run(m_words + words);
        QCOMPARE(outcome.status, 2);
        QVERIFY2(!outcome.said.isEmpty(), qPrintable(words.join(' ')));
    }
}

QTEST_GUILESS_MAIN(TestReport)

#include "tst_report.moc"
