#include "Protocol/datatemplate.h"
#include "Protocol/ruleprotocolitem.h"
#include "scene/entryrows.h"
#include "scene/lanesscene.h"
#include "tabel/controlfactory.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/controltabel.h"
#include "tabel/titlelabel.h"
#include "tests/support/fixtures.h"
#include "tests/support/panelbench.h"
#include "tests/support/rulestest.h"

#include <memory>

namespace
{

QByteArray document(const char* name)
{
    return Fixtures::contentOf(QString("templates/%1.json").arg(name));
}

} // namespace

class TstScenes : public RulesTest
{
    Q_OBJECT

private slots:
    void foldingMaskAndSelection()
    {
        PanelBench bench(document("detection"), "{}", SceneType::Detection);
        QVERIFY(!bench.isShown("actions"));
        bench.click("fuc1");
        bench.press({{100, 100}, {500, 100}, {500, 500}, {100, 500}});
        bench.pressRight();
        BaseTabelScene& panel = bench.panel();
        QWidget* titleBar = bench.find("titleBar");
        QWidget* mask = bench.find("mask");
        const int openHeight = panel.height();

        QTest::mouseClick(titleBar, Qt::LeftButton);
        QVERIFY_BOTH(panel.getFold(), titleBar->property("bFold").toBool());
        QCOMPARE(panel.height(), titleBar->height() + 2);
        QVERIFY_BOTH(!bench.isShown("actions"), !mask->isVisible());
        QTest::mouseClick(titleBar, Qt::LeftButton);
        QCOMPARE(panel.height(), openHeight);
        QVERIFY_BOTH(bench.isShown("actions"), bench.isShown("hint"));

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
        PanelBench bench(document("global"), "{}", SceneType::Global);
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

    void lettingGoKeepsNothing()
    {
        PanelBench bench(document("rules"), document("tworules"), SceneType::Rules);
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

    void tabFollowsTheRows()
    {
        PanelBench bench(document("lanesofrules"), "{}", SceneType::Lanes);
        for (const int x : {100, 300}) {
            bench.click("fuc8");
            bench.press({{x, 100}, {x, 500}, {x + 80, 100}, {x + 80, 500}});
        }
        bench.find("fuc8")->setFocus();
        QStringList order;
        for (int i = 0; i < 6; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            const QWidget* focused = QApplication::focusWidget();
            order.append(focused->objectName().isEmpty() ? QString("-") : focused->objectName());
        }
        QCOMPARE(order.join(' '), QString("- - redraw delete fuc2 fuc2wait"));
    }

    void lanesOfAnyTemplate()
    {
        RuleData data;
        data.setTemplate(std::make_unique<DataTemplate>());
        LanesScene panel;
        panel.setRuleData(&data);
        panel.sltTabelRuleFucBtnClicked(static_cast<int>(BaseDrawType::VehicleLane));
        QCOMPARE(data.getDataCount(), 1);
        panel.setRuleData(nullptr);
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
        entry.setValue("0", true);
        EntryRows::updateDependents(rows, links, QString("0"), entry);
        QCOMPARE(entry.value(QString::number(count - 1)), QVariant(true));
        entry.setValue("0", false);
        EntryRows::updateDependents(rows, links, QString("0"), entry);
        QVERIFY_BOTH(!entry.isValid(QString("1")), entry.isValid(QString("2")));
        EntryRows::release(rows, &links);

        // Widgets measure what they are given, so they get what can be seen.
        const QString text = QString(1 << 20, '&') + QString("<b>");
        RuleProtocolItem item;
        item.setFacade(FacadeType::RadioButton);
        item.setCaption(text);
        item.setEnumeration({{text, text, text, text, false}});
        const std::unique_ptr<ControlTabel> row(createControlTabel(&item, nullptr));
        QVERIFY_BOTH(row->titleLabel()->text().size() < 5000, row->titleLabel()->isElided());
        const auto* box = row->findChild<QAbstractButton*>();
        QVERIFY_BOTH(box->text().size() < 5000, box->toolTip().size() < 5000);
        row->loadValue(text);
        QCOMPARE(row->value(), QVariant(text));
    }
};

QTEST_MAIN(TstScenes)
#include "tst_scenes.moc"
