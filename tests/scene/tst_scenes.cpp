#include "Protocol/datatemplate.h"
#include "Protocol/ruleprotocolitem.h"
#include "scene/entryrows.h"
#include "tabel/controlfactory.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/controltabel.h"
#include "tabel/titlelabel.h"
#include "tests/support/panelbench.h"
#include "tests/support/rulestest.h"

#include <memory>

namespace
{

const QVector<QPoint> kArea{{100, 100}, {500, 100}, {500, 500}, {100, 500}};

QByteArray scene(const QByteArray& section)
{
    return R"({"configDescription": {)" + section + "}}";
}

QByteArray lanes(const QByteArray& count)
{
    return scene(R"("lanes": {"parent": "Lanes", "countOfLane": )" + count + "}");
}

QByteArray calibrate(const QByteArray& method)
{
    return scene(R"("calibrateArea": {"parent": "Areas", "celibateArea": [1, 2],
        "pointOfArea": [4, 4], "method": ")" +
                 method + R"("})");
}

const QByteArray kLaneRules = R"({
  "configDescription": {
    "lanes": {"parent": "Lanes", "countOfLane": [1, 4]},
    "ruleDescription": {"rules": {"count": [1, 4], "parent": "Rules", "controls": [
      {"key": "ruleLaneNumber", "protocol": {"name": "Lane", "type": "int"}},
      {"key": "trip", "protocol": {"name": "Line[]", "type": "point"}},
      {"key": "wait", "protocol": {"name": "Wait[]", "type": "point"}},
      {"key": "speed", "protocol": {"name": "Speed", "type": "int"},
       "valid": {"controlKey": "ruleLaneNumber", "enumValueArray": ["1", "3"]}}]}}},
  "configItems": {
    "ruleLaneNumber": {"describe": "Lane", "facade": "inputBoxNumber", "range": [1, 9]},
    "trip": {"describe": "Trip", "facade": "line"},
    "wait": {"describe": "Wait", "facade": "line"},
    "speed": {"describe": "Speed", "facade": "inputBoxNumber", "range": [1, 99]}},
  "configTemplate": {"Lanes": [{"Number": 0, "LeftLine": [], "RightLine": []}],
                     "Rules": [{"Lane": 0, "Line": [], "Wait": []}]}})";

const QByteArray kGlobal = R"({
  "configDescription": {"ruleDescription": {"global": {"count": [1, 1], "parent": "Global",
    "controls": [{"key": "level", "protocol": {"name": "Level", "type": "int"}}]}}},
  "configItems": {"level": {"describe": "Level", "facade": "inputBoxNumber", "default": 3}}})";

const QByteArray kDetect = R"({
  "configDescription": {"ruleDescription": {"detectArea": {"count": [0, 2], "parent": "Detect",
    "controls": [{"key": "area", "protocol": {"name": "Area[]", "type": "point"}}]}}},
  "configItems": {"area": {"describe": "Area", "facade": "region", "range": [3, 8]}}})";

QString caption(PanelBench& bench, const QString& key)
{
    return bench.find(key)->findChild<QLabel*>("title")->text();
}

void drawArea(PanelBench& bench)
{
    bench.click("fuc1");
    bench.press(kArea);
    bench.pressRight();
}

void drawLane(PanelBench& bench, int x)
{
    bench.click("fuc8");
    // The fourth point is on the wrong side of the first line.
    bench.press({{x, 100}, {x, 500}, {x + 80, 100}, {x - 50, 300}, {x + 80, 500}});
}

} // namespace

class TstScenes : public RulesTest
{
    Q_OBJECT

private slots:
    void foldingMaskAndSelection()
    {
        PanelBench bench(kDetect, "{}", SceneType::Detection);
        QVERIFY(!bench.isShown("actions"));
        drawArea(bench);
        BaseTabelScene& panel = bench.panel();
        QWidget* titleBar = bench.find("titleBar");
        QWidget* mask = bench.find("mask");
        const int openHeight = panel.height();

        QTest::mouseClick(titleBar, Qt::LeftButton);
        QVERIFY(panel.getFold() && titleBar->property("bFold").toBool());
        QCOMPARE(panel.height(), titleBar->height() + 2);
        QVERIFY(!bench.isShown("actions") && !mask->isVisible());
        QTest::mouseClick(titleBar, Qt::LeftButton);
        QCOMPARE(panel.height(), openHeight);
        QVERIFY(bench.isShown("actions") && bench.isShown("hint"));

        panel.setSelected(false);
        QVERIFY(mask->isVisible());
        QCOMPARE(mask->geometry(), panel.rect());
        QCOMPARE(panel.childAt(titleBar->geometry().center()), mask);
        QSignalSpy wanted(&panel, &BaseTabelScene::sgnTrySelectedlScene);
        QTest::mouseClick(mask, Qt::LeftButton, {}, titleBar->geometry().center());
        QCOMPARE(wanted.count(), 1);
        QVERIFY(!panel.getFold()); // the first press only selects
        panel.setSelected(true);
        QVERIFY(!mask->isVisible());
        QCOMPARE(titleBar->property("selected"), QVariant(true));
    }

    void globalHasNoFiguresAndFocusSelectsIt()
    {
        PanelBench bench(kGlobal, "{}", SceneType::Global);
        for (const char* name : {"ruleFucBar", "drawItems", "actions", "hint", "childFucBar"})
            QVERIFY2(!bench.isShown(name), name);
        bench.panel().setSelected(false);
        bench.panel().setFold(true);
        QSignalSpy wanted(&bench.panel(), &BaseTabelScene::sgnTrySelectedlScene);
        auto* edit = bench.find("level")->findChild<QLineEdit*>();
        QCOMPARE(edit->text(), QString("3"));
        edit->setFocus(Qt::TabFocusReason);
        QCOMPARE(wanted.count(), 1);
        QVERIFY(!bench.panel().getFold());
        bench.panel().setSelected(true);
        bench.panel().setFold(true);
        QVERIFY(!edit->hasFocus()); // nothing is typed into what cannot be seen
        bench.panel().setFold(false);
        edit->setFocus();
        QVERIFY(edit->hasFocus());
        delete &bench.panel(); // and the focus with it
    }

    void lanesTakeFreeNumbers()
    {
        PanelBench bench(lanes("[1, 3]"), "{}", SceneType::Lanes);
        QVERIFY(!bench.isShown("controls"));
        const auto number = [&bench](int i) { return bench.entry(i).value("lanesNum").toInt(); };
        drawLane(bench, 100);
        QCOMPARE(caption(bench, "lanesNum"), QString("Lane number"));
        bench.enter("lanesNum", "2");
        drawLane(bench, 250);
        QCOMPARE(number(1), 1);
        bench.enter("lanesNum", "3"); // 1 is free again

        // A lane whose figure is gone holds its number, and the scene has room for one more.
        bench.canvas().removeItem(bench.canvas().getFirstDrawItem()->itemId());
        drawLane(bench, 400);
        QCOMPARE(number(2), 1);
        drawLane(bench, 550);
        QCOMPARE(number(3), 4);

        PanelBench last(lanes("[2147483647, 2147483647]"), R"({"Lanes": {"Number": 2147483647}})",
                        SceneType::Lanes);
        drawLane(last, 100);
        QCOMPARE(last.entry(1).value("lanesNum"), QVariant(2147483647));
    }

    void laneNumberGoesToItsRule()
    {
        PanelBench bench(kLaneRules, "{}", SceneType::Lanes);
        QVERIFY(!bench.isShown("childFucBar"));
        drawLane(bench, 100);
        QVERIFY(bench.canvas().getFirstDrawItem()->getPoints().contains({1440, 4000}));
        QCOMPARE(bench.entry(0).value("ruleLaneNumber"), QVariant(1));
        QVERIFY(bench.entry(0).isValid("speed") && bench.isShown("speed"));
        bench.enter("lanesNum", "2");
        QVERIFY(!bench.entry(0).isValid("speed") && !bench.isShown("speed"));
        bench.enter("lanesNum", "3");
        QCOMPARE(bench.entry(0).value("ruleLaneNumber"), QVariant(3));
        QVERIFY(bench.entry(0).isValid("speed") && bench.isShown("speed"));
        QVERIFY(!bench.panel().findChild<QWidget*>("ruleLaneNumber"));
        QCOMPARE(caption(bench, "speed"), QString("Speed"));
        bench.click("fuc2wait");
        bench.press({{120, 200}, {160, 210}});
        QCOMPARE(bench.buttons("childDrawItems"), QString("[Wait]"));
        QString written;
        QVERIFY(bench.parser().writeData(written));
        PanelBench again(kLaneRules, written.toUtf8(), SceneType::Lanes);
        QCOMPARE(again.figures(0), QString("lanesLanes: 4, trip: 0, wait: 2"));
        bench.panel().sltTabelChildRuleFucBtnClicked(2);
        bench.press({{120, 300}, {160, 310}});
        bench.panel().sltTabelChildRuleFucBtnClicked(2);
        QCOMPARE(bench.buttons("childDrawItems"), QString("[Trip] Wait"));
        QCOMPARE(bench.figures(0), QString("lanesLanes: 4, wait: 2, trip: 2"));
    }

    void addedLanesTakeFreeNames()
    {
        PanelBench bench(kLaneRules,
                         R"({"Lanes": [{"Number": 1}, {"Number": 2}, {"Number": 3}],
            "Rules": [{"Lane": 1, "Name": "Rule1"}, {"Lane": 2, "Name": "Rule3"}, {"Lane": 3},
                      {"Lane": 9, "Name": "Rule4"}]})",
                         SceneType::Lanes);
        bench.click("delete");
        drawLane(bench, 100);
        QCOMPARE(bench.buttons(), QString("Rule3 Lanes2 [Rule5]"));
        PanelBench plain(lanes("[1, 3]"), "{}", SceneType::Lanes);
        drawLane(plain, 100);
        QCOMPARE(plain.buttons(), QString("[Lanes1]"));
    }

    void calibrates()
    {
        PanelBench bench(calibrate("Scene"), "{}", SceneType::CalibrateArea);
        QCOMPARE(caption(bench, "calibrateAreaVertical"), QString("Vertical length"));
        drawArea(bench);
        const auto lacks = [&bench](const char* row) {
            return bench.find(row)->property("marked").toBool();
        };
        QVERIFY(lacks("calibrateAreaVertical") && lacks("calibrateAreaHorizontal"));
        bench.enter("calibrateAreaVertical", "0");
        QCOMPARE(bench.entry(0).value("calibrateAreaVertical"), QVariant(0.01));
        QVERIFY(!lacks("calibrateAreaVertical") && lacks("calibrateAreaHorizontal"));
        QCOMPARE(bench.parser().notices(), QStringList("Area1 has no horizontal length."));
        for (int i = 0; i < 3; ++i) {
            bench.click("fuc6");
            QVERIFY(!bench.find("fuc6")->isEnabled());
            bench.press({{200 + 50 * i, 200}, {210 + 50 * i, 400}});
        }
        QCOMPARE(bench.buttons("childDrawItems"),
                 QString("verticalLine1 verticalLine2 [verticalLine3]"));
        bench.pick(1, "childDrawItems");
        bench.click("delete");
        QCOMPARE(bench.buttons("childDrawItems"), QString("verticalLine1 verticalLine2"));
        QCOMPARE(bench.selectedFigure(), QString("calibrateAreaRegion"));
        bench.pick(0, "childDrawItems");
        bench.click("redraw");
        QCOMPARE(bench.canvas().message(), QString("Please draw verticalLine1!"));

        PanelBench loaded(calibrate("Scene"),
                          R"({"Areas": [{"Area": [[0, 0], [800, 0], [800, 800], [0, 800]],
                              "Staffs": [{"Type": "Vertical", "Length": 2, "Start": [100, 100],
                              "End": [100, 700]}]}]})",
                          SceneType::CalibrateArea);
        loaded.pick(0, "childDrawItems");
        loaded.click("redraw");
        loaded.press({{500, 500}}); // outside the area
        QCOMPARE(loaded.figures(0),
                 QString("calibrateAreaRegion: 4, calibrateAreaVerticalLine: 0..."));

        PanelBench byLane(calibrate("Lane"), "{}", SceneType::CalibrateArea);
        QCOMPARE(caption(byLane, "calibrateAreaVertical"), QString("Length"));
        QCOMPARE(caption(byLane, "calibrateAreaHorizontal"), QString("Width"));
        drawArea(byLane);
        QVERIFY(!byLane.isShown("childFucBar") && !byLane.isShown("childDrawItems"));
        byLane.click("fuc1");
        byLane.press({{200, 200}}); // inside the first area
        QCOMPARE(byLane.figures(1), QString("calibrateAreaRegion: 0..."));
    }

    void tabFollowsTheRows()
    {
        PanelBench bench(kLaneRules, "{}", SceneType::Lanes);
        drawLane(bench, 100);
        drawLane(bench, 300);
        bench.find("fuc8")->setFocus();
        QStringList order;
        for (int i = 0; i < 6; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            const QWidget* focused = QApplication::focusWidget();
            order.append(focused->objectName().isEmpty() ? QString("-") : focused->objectName());
        }
        QCOMPARE(order.join(' '), QString("- - redraw delete fuc2 fuc2wait"));
    }

    void longChainsAndLongTexts()
    {
        // Each attribute applies while the one before has its default.
        const int count = 10000;
        RuleData chain;
        chain.setTemplate(std::make_unique<DataTemplate>());
        DataTemplate& links = *chain.getTemplate();
        ControlItemWidgetTabel rows;
        for (int i = 0; i < count; ++i) {
            auto item = std::make_unique<RuleProtocolItem>();
            item->setKey(QString::number(i));
            item->setFacade(FacadeType::Bool);
            item->setValueType(ValueType::Bool);
            item->setDefaultValue(true);
            item->addValidity({QString::number(i - 1), {QString("true")}});
            rows.addControl(createControlTabel(links.addItem(std::move(item)), nullptr), false);
        }
        QCoreApplication::sendPostedEvents(); // a widget looks for its own when it goes
        RuleDataInfo entry;
        EntryRows::load(rows, chain, &entry);
        entry.setValue(QString("0"), true);
        EntryRows::updateDependents(rows, links, QString("0"), entry);
        QCOMPARE(entry.value(QString::number(count - 1)), QVariant(true));
        entry.setValue(QString("0"), false);
        EntryRows::updateDependents(rows, links, QString("0"), entry);
        QVERIFY(!entry.isValid(QString("1")) && entry.isValid(QString("2")));
        EntryRows::release(rows, &links);

        // Widgets measure what they are given, so they get what can be seen.
        const QString text = QString(1 << 20, QLatin1Char('&')) + QString("<b>");
        RuleProtocolItem item;
        item.setFacade(FacadeType::RadioButton);
        item.setCaption(text);
        item.setEnumeration({{text, text, text, text, false}});
        const std::unique_ptr<ControlTabel> row(createControlTabel(&item, nullptr));
        QVERIFY(row->titleLabel()->text().size() < 5000 && row->titleLabel()->isElided());
        const auto* box = row->findChild<QAbstractButton*>();
        QVERIFY(box->text().size() < 5000 && box->toolTip().size() < 5000);
        row->loadValue(text);
        QCOMPARE(row->value(), QVariant(text));
    }
};

QTEST_MAIN(TstScenes)
#include "tst_scenes.moc"
