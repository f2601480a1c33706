#include "tests/support/fixtures.h"
#include "tests/support/rulesctlprogram.h"
#include "tests/support/rulestest.h"

using kql::Json::Value;

namespace
{

QByteArray rules(const Value& list)
{
    Value config;
    config["Rules"] = list;
    return config.toStyledText().toUtf8();
}

QStringList apply(const Value& fixture, const QString& from)
{
    QStringList words{"apply",  "--template", Fixtures::path("rulesctl/template.json"),
                      "--from", from,         "--entries"};
    words += Fixtures::textsOf(fixture["entries"]);
    return fixture["rename"].asBool() ? words << "--rename" : words;
}

/// A configuration of rules that may be saved.
QByteArray named(const QStringList& names)
{
    QStringList rules;
    for (const QString& name : names)
        rules << QString(R"({"Name": "%1", "Area": [[1, 1], [9, 1], [9, 9]], "Size": [1, 9]})")
                     .arg(name);
    return QString(R"({"Rules": [%1]})").arg(rules.join(", ")).toUtf8();
}

} // namespace

/// What rulesctl apply rolls out, and what it leaves alone.
class TestApply : public RulesTest
{
    Q_OBJECT

private slots:
    void rolls_data() { Fixtures::addRows("rulesctl/applies.json"); }
    void rolls();
    void lanes();
    void results();
    void leavesAloneWhatIsThere();
    void manyFiles();
    void refusals_data();
    void refusals();

private:
    RulesctlProgram m_program;
};

void TestApply::rolls()
{
    QFETCH(const Value, fixture);
    const QByteArray before = rules(fixture["config"]);
    const QString file = m_program.file("config.json", before);
    const QStringList words = apply(fixture, m_program.file("from.json", rules(fixture["from"])));
    const auto outcome = m_program.run(words + QStringList{"--config", file, "--in-place"});
    const QString refused = fixture["refused"].asString();
    QCOMPARE(outcome.status, refused.isEmpty() ? 0 : 1);
    QCOMPARE(outcome.said.contains(refused), true);
    if (!refused.isEmpty()) {
        QCOMPARE(m_program.contentOf("config.json"), before);
        return;
    }
    const QByteArray after = m_program.contentOf("config.json");
    const Value written = RulesctlProgram::parsed(after)["Rules"];
    QCOMPARE(written.size(), fixture["names"].size());
    for (int i = 0; i < written.size(); ++i) {
        QCOMPARE(written[i]["Name"].asString(), fixture["names"][i].asString());
        QVERIFY(written[i]["Dwell"] == fixture["dwells"][i]);
        QCOMPARE(written[i]["Area"].size(), fixture["areas"][i].asInt());
    }
    const auto again = m_program.run(words + QStringList{"--config", file, "--in-place"});
    QCOMPARE(again.out, QString());
    QCOMPARE(m_program.contentOf("config.json"), after);
}

/// A lane that is replaced keeps its number, one that is added gets a free one.
void TestApply::lanes()
{
    const QString folder = ExampleFiles::folder("traffic");
    const QStringList words{"apply",
                            "--template",
                            folder + "template.json",
                            "--from",
                            folder + "saved.json",
                            "--entries",
                            "Left turn",
                            "Rule4",
                            "--config",
                            folder + "config.json"};
    QCOMPARE(m_program.run(words + QStringList{"-o", "lanes"}).status, 0);
    const Value written = RulesctlProgram::parsed(m_program.contentOf("lanes/config.json"));
    const Value& lanes = written["Traffic"]["Lanes"];
    QCOMPARE(lanes.size(), 4);
    for (int i = 0; i < lanes.size(); ++i)
        QCOMPARE(lanes[i]["Number"].asInt(), i + 1);
    const auto same = m_program.run({"apply", "--template", folder + "template.json", "--from",
                                     folder + "saved.json", "--entries", "Left turn", "Rule4",
                                     "--config", "lanes", "--dry-run"});
    QCOMPARE(same.status, 0);
    QCOMPARE(same.out, QString());
}

/// In place of a result its configuration is replaced; elsewhere it is written alone.
void TestApply::results()
{
    const QString from = m_program.file("from.json", named({"Gate"}));
    const QString result = m_program.file(
        "result.json", R"({"algorithmId": 3, "result": 0, "channelAbilityPO": {"Rules": []}})");
    const QStringList words{"apply",  "--template", Fixtures::path("rulesctl/template.json"),
                            "--from", from,         "--entries",
                            "Gate",   "--config",   result};
    QCOMPARE(m_program.run(words + QStringList{"-o", "alone"}).status, 0);
    QCOMPARE(m_program.run(words + QStringList{"--in-place"}).status, 0);
    const Value alone = RulesctlProgram::parsed(m_program.contentOf("alone/result.json"));
    const Value whole = RulesctlProgram::parsed(m_program.contentOf("result.json"));
    QCOMPARE(alone["Rules"].size(), 1);
    QVERIFY(whole["channelAbilityPO"] == alone);
    QCOMPARE(whole["algorithmId"].asInt(), 3);
}

/// Also where the skeleton's values are read in another way than they are written.
void TestApply::leavesAloneWhatIsThere()
{
    Value rulesTemplate = Fixtures::read("rulesctl/template.json");
    Value& skeleton = rulesTemplate["configTemplate"]["Rules"][0];
    skeleton["Kind"] = 0;
    skeleton["What"][0] = true;
    const QString file = m_program.file("config.json", named({"Yard"}));
    const QStringList words{"apply",
                            "--template",
                            m_program.file("odd.json", rulesTemplate.toStyledText().toUtf8()),
                            "--from",
                            m_program.file("from.json", named({"Gate"})),
                            "--entries",
                            "Gate",
                            "--config",
                            file,
                            "--in-place"};
    QCOMPARE(m_program.run(words).status, 0);
    const QByteArray written = m_program.contentOf("config.json");
    QVERIFY(RulesctlProgram::parsed(written)["Rules"][0]["Kind"].isInt());
    // A name that is given twice is one.
    for (const QStringList& more : {QStringList(), QStringList("--rename")}) {
        const auto again = m_program.run(words + more + QStringList{"--entries", "Gate"});
        QCOMPARE(again.status, 0);
        QCOMPARE(again.out, QString());
        QCOMPARE(m_program.contentOf("config.json"), written);
    }
}

void TestApply::manyFiles()
{
    const QString from = m_program.file("from.json", named({"Gate"}));
    const QString good = m_program.file("good.json", "{}");
    const QString bad = m_program.file("bad.json", "{");
    const QString full = m_program.file("full.json", named({"A", "B", "C", "D"}));
    const QStringList words{"apply",  "--template", Fixtures::path("rulesctl/template.json"),
                            "--from", from,         "--entries",
                            "Gate",   "--config",   full,
                            bad,      good};
    const auto tried = m_program.run(words + QStringList{"--dry-run"});
    QCOMPARE(tried.status, 2);
    QCOMPARE(m_program.contentOf("good.json"), QByteArray("{}"));
    const auto outcome = m_program.run(words + QStringList{"--in-place"});
    QCOMPARE(outcome.status, 2);
    QVERIFY(outcome.out.contains("+ Gate was added at place 1"));
    QVERIFY(outcome.said.contains(full + ": left alone: "));
    QVERIFY(outcome.said.contains(bad + ":1:"));
    QVERIFY(m_program.contentOf("good.json").contains("Gate"));
    QCOMPARE(m_program.contentOf("bad.json"), QByteArray("{"));
}

void TestApply::refusals_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::newRow("a name that is not there") << QStringList{"Gate", "Wall", "--in-place"};
    QTest::newRow("a name that is there twice") << QStringList{"Twin", "--in-place"};
    QTest::newRow("a source that Save would refuse") << QStringList{"Door", "--in-place"};
    QTest::newRow("the template itself")
        << QStringList{"Gate", "--in-place", "--config", Fixtures::path("rulesctl/template.json")};
    QTest::newRow("a folder without a name") << QStringList{"Gate", "-o", ""};
    QTest::newRow("nowhere to write") << QStringList{"Gate"};
    QTest::newRow("two places to write") << QStringList{"Gate", "--in-place", "-o", "x"};
    QTest::newRow("two files of one name")
        << QStringList{"Gate", "-o", "x", "--config", "sub/../config.json"};
}

void TestApply::refusals()
{
    QFETCH(QStringList, words);
    const bool isWhole = words.first() == "Gate";
    const QString from = m_program.file(
        "from.json", isWhole ? named({"Gate"})
                             : QByteArray(R"({"Rules": [{"Name": "Door"}, {"Name": "Twin"}, )"
                                          R"({"Name": "Twin"}]})"));
    const QString config = m_program.file("config.json", "{}");
    const auto outcome =
        m_program.run(QStringList{"apply", "--template", Fixtures::path("rulesctl/template.json"),
                                  "--from", from, "--config", config, "--entries"} +
                      words);
    QCOMPARE(outcome.status, 2);
    QCOMPARE(outcome.out, QString());
    QVERIFY(!outcome.said.isEmpty());
    QCOMPARE(m_program.contentOf("config.json"), QByteArray("{}"));
    QVERIFY(!QFile::exists(m_program.path("x")));
}

QTEST_GUILESS_MAIN(TestApply)

#include "tst_apply.moc"
