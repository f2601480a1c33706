#include "tests/support/fixtures.h"
#include "tests/support/rulesctlprogram.h"
#include "tests/support/rulestest.h"

using kql::Json::Value;

namespace
{

QStringList diff(const QString& folder = {})
{
    const QString file =
        folder.isEmpty() ? Fixtures::path("rulesctl/template.json") : folder + "template.json";
    return {"diff", "--template", file};
}

/// Whether @p change has all that @p wanted names.
bool isLike(const Value& change, const Value& wanted)
{
    for (int i = 0; i < wanted.size(); ++i) {
        const Value* const found = change.find(wanted.memberName(i));
        if (!found || *found != wanted.memberValue(i))
            return false;
    }
    return change.size() == 12;
}

QByteArray text(const Value& value)
{
    return value.toStyledText().toUtf8();
}

} // namespace

/// What rulesctl diff tells, of files and of lines.
class TestDiff : public RulesTest
{
    Q_OBJECT

private slots:
    void changes_data() { Fixtures::addRows("rulesctl/diffs.json"); }
    void changes();
    void furtherStaffs();
    void examples();
    void figures();
    void page();
    void lines();
    void refusals();

private:
    RulesctlProgram m_program;
};

void TestDiff::changes()
{
    QFETCH(const Value, fixture);
    const QString a = m_program.file("a.json", text(fixture["a"]));
    const QString b = m_program.file("b.json", text(fixture["b"]));
    const auto outcome = m_program.run(diff() + QStringList{a, b, "--format", "json"});
    const Value answer = RulesctlProgram::parsed(outcome.out.toUtf8());
    const Value& wanted = fixture["changes"];
    const bool isSame = wanted.empty() || fixture["same"].asBool();
    QCOMPARE(outcome.said, QString());
    QCOMPARE(outcome.status, isSame ? 0 : 1);
    QCOMPARE(answer["same"].asBool(), isSame);
    QCOMPARE(answer["changes"].size(), wanted.size());
    for (int i = 0; i < wanted.size(); ++i)
        QVERIFY2(isLike(answer["changes"][i], wanted[i]), text(answer["changes"][i]).constData());
    const auto plain = m_program.run(diff() + QStringList{a, b});
    QCOMPARE(plain.status, outcome.status);
    for (int i = 0; i < wanted.size(); ++i)
        QVERIFY(plain.out.contains(answer["changes"][i]["text"].asString()));
}

/// No row has the length of a third staff; one that is measured anew mostly moves, too.
void TestDiff::furtherStaffs()
{
    const QString folder = ExampleFiles::folder("scene-calibration");
    const QByteArray before = ExampleFiles::contentOf(folder + "config.json");
    Value config = RulesctlProgram::parsed(before);
    Value& staffs = config["Calibration"]["Areas"][0]["Staffs"];
    staffs[0]["Length"] = 2.5;
    staffs[2]["Length"] = 9.5;
    staffs[2]["End"][1] = 3600;
    const QStringList files{folder + "config.json", m_program.file("b.json", text(config))};
    const auto outcome = m_program.run(diff(folder) + files + QStringList{"--format", "json"});
    const Value answer = RulesctlProgram::parsed(outcome.out.toUtf8());
    QStringList places;
    for (int i = 0; i < answer["changes"].size(); ++i) {
        const Value& change = answer["changes"][i];
        places.append(change["key"].asString() + change["pointer"].asString());
    }
    QCOMPARE(places, QStringList({"calibrateAreaVertical", "calibrateAreaVerticalLine",
                                  "/Calibration/Areas/0/Staffs/2/Length"}));
}

/// A save that was read again is what was saved.
void TestDiff::examples()
{
    for (const QString& name : ExampleFiles::names()) {
        const QString folder = ExampleFiles::folder(name);
        const QString config = folder + "config.json";
        const QString saved = folder + "saved.json";
        QCOMPARE(m_program.run(diff(folder) + QStringList{config, config}).out, QString());
        QCOMPARE(m_program.run(diff(folder) + QStringList{saved, saved}).status, 0);
        const auto there = m_program.run(diff(folder) + QStringList{config, saved});
        const auto back = m_program.run(diff(folder) + QStringList{saved, config});
        QCOMPARE(there.status, 1);
        QCOMPARE(there.out.count("  - "), back.out.count("  + "));
    }
}

void TestDiff::figures()
{
    const QString folder = ExampleFiles::folder("statistics");
    Value config = RulesctlProgram::parsed(ExampleFiles::contentOf(folder + "config.json"));
    Value& direction = config["PeopleCounting"]["Rules"][0]["Config"]["Direction"];
    QVERIFY(direction.size() == 2 && direction[0] != direction[1]);
    std::swap(direction[0], direction[1]);
    const QString b = m_program.file("turned.json", text(config));
    const auto outcome = m_program.run(diff(folder) + QStringList{folder + "config.json", b});
    QVERIFY2(outcome.out.endsWith("Counting area is crossed in another direction\n"),
             qPrintable(outcome.out));
    // Of several figures of one attribute it says which.
    const QString calibrated = ExampleFiles::folder("fight-calibration");
    const QStringList files{calibrated + "config.json", calibrated + "saved.json"};
    const QString told = m_program.run(diff(calibrated) + files).out;
    for (const char* line :
         {": Calibrate rect 2 is no longer there\n", ": Calibrate rect 3 is no longer there\n"})
        QCOMPARE(told.count(line), 1);
}

/// Names are anybody's, and a page of them must neither run nor load anything.
void TestDiff::page()
{
    const auto rules = [](const char* name, int corner) {
        return QByteArray(R"({"Rules": [{"Name": "Same", "Area": [[0, 0], [9, 0], [9, 9]]},
                                        {"Name": "NAME", "Area": [[0, 0], [9, 0], [9, C]]}]})")
            .replace("NAME", name)
            .replace("C]", QByteArray::number(corner) + ']');
    };
    const QString a = m_program.file("a&b.json", rules("</svg><script>alert(1)", 9));
    const QString b = m_program.file("b.json", rules("</svg><script>alert(1)", 99));
    QImage picture(320, 180, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    QVERIFY(picture.save(m_program.path("gate.png")));
    const auto outcome = m_program.run(
        diff() + QStringList{a, b, "--format", "html", "--picture", m_program.path("gate.png")});
    QCOMPARE(outcome.said, QString());
    QCOMPARE(outcome.status, 1);
    const QByteArray page = outcome.out.toUtf8();
    QCOMPARE(page.count("<script"), 1);
    QCOMPARE(page.count("data:image/png;base64,"), 1);
    QCOMPARE(page.count("<use "), 2);
    QVERIFY(page.contains("a&amp;b.json"));
    QVERIFY(page.contains("&lt;script&gt;alert(1): Region was moved by up to 1.1 %</li>"));
    QVERIFY(page.contains("data-a=\"rules-2\" data-b=\"rules-2\""));
    QVERIFY(!page.contains("src="));
    QByteArray elsewhere = page;
    elsewhere.replace("http://www.w3.org/", "");
    QVERIFY(!elsewhere.contains("http:") && !elsewhere.contains("https:"));
}

void TestDiff::lines()
{
    const auto outcome =
        m_program.run(diff() + QStringList{"--jsonl"},
                      "{\"id\":1.50,\"a\":{\"Rules\":[{\"Name\":\"A\"}]},\"b\":{\"Rules\":[]}}\n\n"
                      "{\"id\":\"x\",\"a\":{},\"b\":{}}\n{\"id\":2,\"a\":{}}\n");
    const QStringList answers = outcome.out.split('\n');
    QCOMPARE(outcome.status, 0);
    QCOMPARE(answers.size(), 4);
    QVERIFY(answers[0].startsWith("{\"id\":1.50,\"status\":\"ok\",\"same\":false,\"changes\":[{"));
    QVERIFY(answers[0].endsWith("],\"error\":null}"));
    QCOMPARE(answers[1], QString("{\"id\":\"x\",\"status\":\"ok\",\"same\":true,\"changes\":[],"
                                 "\"error\":null}"));
    QVERIFY(answers[2].startsWith("{\"id\":null,\"line\":4,\"status\":\"unreadable\",\"error\":{"));
}

void TestDiff::refusals()
{
    const QString good = m_program.file("good.json", "{}");
    const QString bad = m_program.file("bad.json", "{\n  \"Rules\": ]}");
    const auto broken = m_program.run(diff() + QStringList{good, bad});
    QCOMPARE(broken.status, 2);
    QVERIFY2(broken.said.startsWith(bad + ":2:"), qPrintable(broken.said));
    for (const QStringList& words : {QStringList{good},
                                     {good, good, good},
                                     {good, good, "--jsonl"},
                                     {good, "gone.json"},
                                     {good, m_program.path(".")},
                                     {good, good, "--picture", good},
                                     {good, good, "--format", "html", "--picture", good},
                                     {good, good, "--format", "yaml"}}) {
        const auto outcome = m_program.run(diff() + words);
        QCOMPARE(outcome.status, 2);
        QVERIFY2(!outcome.said.isEmpty(), qPrintable(words.join(' ')));
    }
}

QTEST_GUILESS_MAIN(TestDiff)

#include "tst_diff.moc"
