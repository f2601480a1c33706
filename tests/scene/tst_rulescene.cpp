#include "draw/basedraw.h"
#include "scene/rulescene.h"
#include "tabel/controltabel.h"
#include "tests/support/examplefiles.h"
#include "tests/support/panelbench.h"
#include "tests/support/rulestest.h"

namespace
{

const QVector<QPoint> kTriangle{{100, 100}, {300, 110}, {200, 300}};
const QVector<QPoint> kLine{{400, 400}, {500, 410}};

// Region and arrow, and a mode that shows and hides rows.
const QByteArray kTemplate = R"({
  "configDescription": {"ruleDescription": {"rules": {"count": [1, 3], "parent": "Rules",
    "controls": [
      {"key": "region", "protocol": {"name": "Area[]", "type": "point"}},
      {"key": "arrow", "protocol": {"name": "Arrow[]", "type": "point"}},
      {"key": "mode", "protocol": {"name": "Mode", "type": "string"}},
      {"key": "dwell", "protocol": {"name": "Dwell", "type": "int"},
       "valid": {"controlKey": "mode", "enumValueArray": ["Long", "Endless"]}},
      {"key": "alarm", "protocol": {"name": "Alarm", "type": "bool"},
       "valid": {"controlKey": "dwell", "enumValueArray": ["5", "7"]}},
      {"key": "note", "protocol": {"name": "Note", "type": "string"}}]}}},
  "configItems": {
    "region": {"describe": "Region", "facade": "region", "range": [3, 8]},
    "arrow": {"describe": "Arrow", "facade": "directLine"},
    "mode": {"describe": "Mode", "facade": "radioButton", "default": "Short", "enumeration": [
      {"name": "Short", "value": "Short"}, {"name": "Long", "value": "Long"},
      {"name": "Endless", "value": "Endless"}]},
    "dwell": {"describe": "Dwell", "facade": "inputBoxNumber", "range": [1, 60], "default": 5},
    "alarm": {"describe": "Alarm", "facade": "bool"},
    "note": {"describe": "Note", "facade": "inputBoxNumber"}}})";

const QByteArray kArea = R"("Area": [[800, 800], [2000, 800], [2000, 2000]])";
const QByteArray kArrow = R"("Arrow": [[800, 800], [2000, 800]])";

/// Two rules: a complete one and one whose arrow is not drawn yet, and which has no name.
const QByteArray kConfig = R"({"Rules": [{"Name": "Gate", "Enable": true, )" + kArea + ", " +
                           kArrow + R"(, "Mode": "Long", "Dwell": 7, "Note": "n1"}, {)" + kArea +
                           R"(, "Mode": "Short", "Note": "n2"}]})";

const QByteArray kRelayTemplate = R"({
  "configDescription": {"ruleDescription": {"rules": {"count": [1, 3], "parent": "Rules",
    "controls": [
      {"key": "relay", "protocol": {"name": "Relay", "type": "object"}},
      {"key": "volume", "protocol": {"name": "Volume", "type": "int"}, "valid":
        {"controlKey": "relay", "enumValue": {"Seconds": 20, "Output": 1}}}]}}},
  "configItems": {
    "relay": {"describe": "Relay", "facade": "radioButton", "default": {"Seconds": 0, "Output": 0},
      "enumeration": [{"name": "Off", "value": {"Output": 0, "Seconds": 0}},
                      {"name": "Siren", "value": {"Output": 1, "Seconds": 20}}]},
    "volume": {"describe": "Volume", "facade": "inputBoxNumber"}},
  "configTemplate": {"Rules": [{"Relay": {}, "Volume": 0}]}})";

PanelBench ofExample(const QString& name)
{
    const QString folder = ExampleFiles::folder(name);
    return PanelBench(ExampleFiles::contentOf(folder + "template.json"),
                      ExampleFiles::contentOf(folder + "config.json"), SceneType::Rules);
}

} // namespace

class TstRuleScene : public RulesTest
{
    Q_OBJECT

private slots:
    void addedRuleIsDrawnFigureByFigure()
    {
        PanelBench bench(kTemplate, kConfig, SceneType::Rules);
        bench.click("addRule");
        QCOMPARE(bench.buttons(), QString("Gate Rule2 [Rule3]"));
        QCOMPARE(bench.canvas().message(), QString("Please draw Rule3!"));
        QCOMPARE(bench.entry(2).value("dwell"), QVariant(5));
        QVERIFY(bench.panel().GetDrawStatus());
        QVERIFY(!bench.find("addRule")->isEnabled());

        bench.press(kTriangle);
        bench.pressRight();
        QCOMPARE(bench.figures(2), QString("region: 3, arrow: 0..."));
        QCOMPARE(bench.canvas().message(), QString("Please draw Arrow!"));
        QVERIFY(!bench.find("addRule")->isEnabled());
        bench.press(kLine);
        QCOMPARE(bench.figures(2), QString("region: 3, arrow: 2"));
        QVERIFY(bench.find("addRule")->isEnabled());
    }

    void pickNamesDrawsAndFinishesEdits()
    {
        PanelBench bench(kTemplate, kConfig, SceneType::Rules);
        bench.type("note", "typed");
        bench.pick(1);
        QCOMPARE(bench.entry(0).value("note"), QVariant("typed"));
        QCOMPARE(bench.entry(1).value("note"), QVariant("n2"));
        QCOMPARE(bench.entry(1).name(), QString("Rule2"));
        QVERIFY(!bench.isShown("dwell"));
        QCOMPARE(bench.figures(1), QString("region: 3, arrow: 0..."));
        bench.press(kLine);
        bench.pick(0);
        QCOMPARE(bench.selectedFigure(), QString("arrow"));
        bench.pick(0); // a press on the current button keeps it
        QCOMPARE(bench.buttons(), QString("[Gate] Rule2"));

        // Emptied is stored, left empty is not.
        PanelBench bare(kTemplate, R"({"Rules": [{"Name": "Bare"}]})", SceneType::Rules);
        QTest::keyClick(bare.find("note")->findChild<QLineEdit*>(), Qt::Key_Return);
        QVERIFY(!bare.entry(0).value("note").isValid());
        bare.enter("note", "x");
        bare.enter("note", "");
        QCOMPARE(bare.entry(0).value("note"), QVariant(""));
    }

    void nothingFollowsWhereNothingMay()
    {
        PanelBench readOnly(kTemplate, kConfig, SceneType::Rules);
        readOnly.panel().setUIEditable(false);
        readOnly.pick(1);
        QCOMPARE(readOnly.figures(1), QString("region: 3"));

        PanelBench selecting(kTemplate, kConfig, SceneType::Rules, true);
        selecting.pick(1);
        QCOMPARE(selecting.figures(1), QString("region: 3"));
        for (const char* hidden : {"ruleFucBar", "actions", "hint"})
            QVERIFY2(!selecting.isShown(hidden), hidden);

        PanelBench deleting(kTemplate, kConfig, SceneType::Rules);
        deleting.click("delete");
        QCOMPARE(deleting.figures(0), QString("region: 3"));
    }

    void redrawStartsFromTheFirstFigure()
    {
        PanelBench bench(kTemplate, kConfig, SceneType::Rules);
        bench.enter("ruleName", "Entrance");
        QCOMPARE(bench.buttons(), QString("[Entrance] Rule2"));
        bench.click("redraw");
        QCOMPARE(bench.canvas().message(), QString("Please draw Entrance!"));
        bench.enter("ruleName", "Portal");
        QCOMPARE(bench.canvas().message(), QString("Please draw Portal!"));
        bench.enter("ruleName", "Entrance");
        QCOMPARE(bench.canvas().getFirstDrawItem()->label(), QString("Entrance"));
        QCOMPARE(bench.figures(0), QString("region: 0..."));
        QVERIFY(bench.panel().GetDrawStatus());

        // A rule that came without figures is drawn as a whole.
        PanelBench bare(kTemplate, R"({"Rules": [{"Name": "Bare"}]})", SceneType::Rules);
        bare.click("redraw");
        QCOMPARE(bare.canvas().message(), QString("Please draw Bare!"));
        bare.press(kTriangle);
        bare.click("redraw"); // the button has its figure now
        QCOMPARE(bare.figures(0), QString("region: 0..."));
    }

    void deletesWhatIsBeingDrawn()
    {
        PanelBench bench(kTemplate, kConfig, SceneType::Rules);
        bench.click("addRule");
        bench.click("delete");
        QCOMPARE(bench.buttons(), QString("Gate [Rule2]"));
        QCOMPARE(bench.canvas().itemCount(BaseDrawType::None, 0), 3);
        QVERIFY(bench.find("addRule")->isEnabled());
        bench.pick(0);
        bench.click("delete");
        QCOMPARE(bench.buttons(), QString("[Rule1]"));
        QCOMPARE(bench.find("note")->findChild<QLineEdit*>()->text(), QString("n2"));

        PanelBench named(kTemplate, R"({"Rules": [{"Name": "Rule1"}, {"Name": "Rule3"}, {}]})",
                         SceneType::Rules);
        named.click("delete");
        named.click("addRule"); // Rule3 has its name already, the one without has Rule2
        QCOMPARE(named.buttons(), QString("Rule3 Rule2 [Rule4]"));
        QCOMPARE(named.entry(2).name(), QString("Rule4"));
    }

    void names()
    {
        const std::pair<QString, QString> typedAndStored[] = {
            {"a1", "a1"},
            {u8"\u95E8_1", u8"\u95E8_1"},
            {u8"\u04BB1", u8"\u04BB1"}, // where the wide range begins
            {"a", "Gate"},
            {"_", "Gate"},
            {"a!b", "ab"},
            {u8"ab\u3001", "ab"}, // punctuation inside the wide range
            {"abcdefghijklmnopqrstu", "abcdefghijklmnopqrst"},
        };
        for (const auto& [typed, stored] : typedAndStored) {
            PanelBench bench(kTemplate, kConfig, SceneType::Rules);
            bench.enter("ruleName", typed);
            bench.panel().finishEdits();
            QCOMPARE(bench.entry(0).name(), stored);
            QCOMPARE(bench.find("ruleName")->findChild<QLineEdit*>()->text(), stored);
        }
    }

    void keepsWhatItCannotShow()
    {
        QByteArray described = kTemplate;
        described.insert(described.size() - 1, R"(, "configTemplate": {"Rules": [{}]})");
        PanelBench bench(described, R"({"Rules": [{"Name": {}, "Mode": "Short", "Dwell": "x",
                         "Alarm": "true", "Note": [[]]}, {"Name": "b"}]})",
                         SceneType::Rules);
        const auto expect = [&bench](const QString& marks, const QString& written) {
            QStringList marked;
            for (const ControlTabel* row : bench.panel().findChildren<ControlTabel*>()) {
                if (row->isMarked() && !row->toolTip().isEmpty())
                    marked.append(row->objectName());
            }
            QCOMPARE(marked.join(' '), marks);
            kql::Json::Value config;
            QVERIFY(bench.parser().writeData(config));
            QCOMPARE(config["Rules"][0].toCompactText().section("\"Enable", 0, 0), written);
        };
        expect("ruleName dwell alarm note",
               R"({"Dwell":"x","Alarm":"true","Note":[[]],"Mode":"Short","Name":{},)");
        bench.pick(1);
        expect({}, R"({"Dwell":"x","Alarm":"true","Note":[[]],"Mode":"Short","Name":{},)");
        bench.pick(0);
        bench.clickOption("mode", "Long"); // "dwell" applies by that, and does not start anew
        expect("ruleName dwell alarm note",
               R"({"Dwell":"x","Alarm":"true","Note":[[]],"Mode":"Long","Name":{},)");
        QVERIFY(bench.parser().notices().join(' ').contains("Note (Rule1) cannot be shown"));
        bench.enter("dwell", "5");
        QTest::keyClick(bench.find("switch"), Qt::Key_Space);
        bench.enter("note", "n");
        bench.enter("ruleName", "name");
        expect({}, R"({"Mode":"Long","Dwell":5,"Alarm":true,"Note":"n","Name":"name",)");
        QVERIFY(!bench.parser().notices().join(' ').contains("cannot be shown"));
    }

    void dependentRowsFollowTheirControllers()
    {
        PanelBench bench(kTemplate, kConfig, SceneType::Rules);
        QVERIFY(bench.isShown("dwell") && bench.isShown("alarm"));
        bench.clickOption("mode", "Short");
        QCOMPARE(bench.entry(0).value("mode"), QVariant("Short"));
        QVERIFY(!bench.isShown("dwell") && !bench.isShown("alarm"));
        QVERIFY(!bench.entry(0).isValid("dwell"));
        QVERIFY(bench.entry(0).isValid("alarm")); // its own condition is still met
        bench.clickOption("mode", "Long");
        QCOMPARE(bench.entry(0).value("dwell"), QVariant(7));
        QVERIFY(bench.entry(0).isValid("dwell") && bench.isShown("alarm"));
        bench.enter("dwell", "8");
        QVERIFY(!bench.isShown("alarm"));

        // The value that was loaded is a change again after another one was stored.
        PanelBench again(kTemplate, kConfig, SceneType::Rules);
        again.type("dwell", "9");
        // Where a click leaves the focus in the edit, the edit is still unfinished.
        again.find("mode")->findChildren<QAbstractButton*>().last()->click();
        QCOMPARE(again.entry(0).value("dwell"), QVariant(9));
        again.enter("dwell", "7");
        QCOMPARE(again.entry(0).value("dwell"), QVariant(7));

        // What did not apply so far starts with its default.
        PanelBench plain(kTemplate, R"({"Rules": [{"Mode": "Short"}]})", SceneType::Rules);
        QVERIFY(!plain.entry(0).value("dwell").isValid());
        plain.clickOption("mode", "Long");
        QCOMPARE(plain.entry(0).value("dwell"), QVariant(5));
        QVERIFY(plain.entry(0).isValid("alarm")); // and so does what depends on that
        QCOMPARE(plain.find("dwell")->findChild<QLineEdit*>()->text(), QString("5"));
    }

    void directionsGoToFigures()
    {
        const auto direction = [](PanelBench& bench, int position) {
            const int id = bench.entry(position).id();
            return int(bench.canvas().getItemListByDataId(id).first()->figure()->direction());
        };
        PanelBench lines = ofExample("tripwire");
        int expected = 0;
        for (const char* option : {"RightToLeft", "LeftToRight", "Both"}) {
            lines.clickOption("ruleLineDirection", option);
            QCOMPARE(direction(lines, 0), ++expected);
        }

        const QString key = "ruleStatisticsRegionDirection";
        PanelBench regions = ofExample("statistics");
        regions.clickOption(key, "RightToLeft");
        regions.pick(1);
        regions.click("delete");
        regions.click("addRule"); // takes over what the row shows
        QCOMPARE(direction(regions, 1), 1);
        regions.clickOption(key, "LeftToRight");
        QCOMPARE(direction(regions, 1), 2);
        QCOMPARE(direction(regions, 0), 1);
    }

    void objectsCompareByWhatTheyHold()
    {
        const QString relay = R"({ "Seconds": 20.0, "Output": 1 })";
        PanelBench bench(kRelayTemplate,
                         R"({"Rules": [{"Name": "a", "Relay": )" + relay.toUtf8() + "}]}",
                         SceneType::Rules);
        const auto checked = [&bench] {
            for (const auto* box : bench.find("relay")->findChildren<QAbstractButton*>()) {
                if (box->isChecked())
                    return box->text();
            }
            return QString();
        };
        QCOMPARE(checked(), QString("Siren"));
        QVERIFY(bench.isShown("volume"));
        bench.click("addRule");
        QCOMPARE(checked(), QString("Off"));
        QVERIFY(!bench.isShown("volume"));
        QString written;
        QVERIFY(bench.parser().writeData(written));
        written = written.simplified();
        QVERIFY2(written.contains(relay) && written.contains(R"("Seconds": 0, "Output": 0)"),
                 qPrintable(written));
    }

    void lettingGoKeepsNothing()
    {
        PanelBench bench(kTemplate, kConfig, SceneType::Rules);
        bench.type("note", "lost");
        bench.panel().setRuleData(nullptr);
        QCOMPARE(bench.panel().findChildren<QWidget*>("note").size(), 0);
        bench.panel().sltRedrawItem();
        bench.panel().sltTabelRuleFucBtnClicked(1);
        bench.panel().sltTabelAttrControlValueChange("note");
        bench.panel().setRuleData(&bench.data());
        QCOMPARE(bench.buttons(), QString("[Gate] Rule2"));
        QCOMPARE(bench.panel().findChildren<QWidget*>("note").size(), 1);
        QCOMPARE(bench.entry(0).value("note"), QVariant("n1"));
    }
};

QTEST_MAIN(TstRuleScene)
#include "tst_rulescene.moc"
