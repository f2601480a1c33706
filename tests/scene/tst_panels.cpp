#include "Protocol/datatemplate.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/basedraw.h"
#include "scene/entryrows.h"
#include "scene/lanesscene.h"
#include "tabel/controlfactory.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/controltabel.h"
#include "tabel/titlelabel.h"
#include "tests/support/panelbench.h"
#include "tests/support/rulestest.h"
#include "tests/support/script.h"

using kql::Json::Value;

namespace
{

using Bench = std::unique_ptr<PanelBench>;
using Step = const Value&;

QString text(Step step, int position = 1)
{
    return step[position].asString();
}

QString marked(Bench& bench)
{
    QStringList names;
    for (const ControlTabel* row : bench->panel().findChildren<ControlTabel*>()) {
        if (row->isMarked() && !row->toolTip().isEmpty())
            names.append(row->objectName());
    }
    return names.join(' ');
}

QString checked(QWidget& row)
{
    for (const auto* box : row.findChildren<QAbstractButton*>()) {
        if (box->isChecked())
            return box->text();
    }
    return {};
}

Value written(Bench& bench)
{
    Value config;
    if (!bench->parser().writeData(config))
        qWarning("not written");
    return config;
}

/// What is saved is read again.
void reload(Bench& bench, Step step)
{
    const SceneType scene = bench->data().getSceneType();
    const QByteArray saved = QByteArray::fromStdString(written(bench).toStyledString());
    bench = std::make_unique<PanelBench>(Fixtures::contentOf(text(step)), saved, scene);
}

const DrawItem& firstFigure(Bench& bench, int entry)
{
    return *bench->canvas().getItemListByDataId(bench->entry(entry).id()).first();
}

QLineEdit* editOf(Bench& bench, Step step)
{
    return bench->find(text(step))->findChild<QLineEdit*>();
}

void key(Bench& bench, Step step)
{
    const bool isSpace = text(step, 2) == "Space";
    QWidget* edit = isSpace ? bench->find(text(step)) : editOf(bench, step);
    QTest::keyClick(edit, isSpace ? Qt::Key_Space : Qt::Key_Return);
}

QString tableOf(Step step, int position)
{
    return step.size() > position ? text(step, position) : QString("drawItems");
}

/// What an operator, or a client, does; and what there is to see.
const Script<Bench> kScript{
    {{"click", [](Bench& b, Step s) { b->click(text(s)); }},
     {"clickLast",
      [](Bench& b, Step s) { b->find(text(s))->findChildren<QAbstractButton*>().last()->click(); }},
     {"pick", [](Bench& b, Step s) { b->pick(s[1].asInt(), tableOf(s, 2)); }},
     {"option", [](Bench& b, Step s) { b->clickOption(text(s), text(s, 2)); }},
     {"type", [](Bench& b, Step s) { b->type(text(s), text(s, 2)); }},
     {"enter", [](Bench& b, Step s) { b->enter(text(s), text(s, 2)); }},
     {"key", key},
     {"press", [](Bench& b, Step s) { b->press(Fixtures::pointsOf(s[1])); }},
     {"pressRight", [](Bench& b, Step) { b->pressRight(); }},
     {"childFunction",
      [](Bench& b, Step s) { b->panel().sltTabelChildRuleFucBtnClicked(s[1].asInt()); }},
     {"finish", [](Bench& b, Step) { b->panel().finishEdits(); }},
     {"lock", [](Bench& b, Step) { b->panel().setUIEditable(false); }},
     {"removeFirst",
      [](Bench& b, Step) { b->canvas().removeItem(b->canvas().getFirstDrawItem()->itemId()); }},
     {"reload", reload}},
    {{"buttons", [](Bench& b, Step s) { return b->buttons(text(s)); }},
     {"message", [](Bench& b, Step) { return b->canvas().message(); }},
     {"value", [](Bench& b, Step s) { return b->entry(s[1].asInt()).value(text(s, 2)); }},
     {"isValid", [](Bench& b, Step s) { return b->entry(s[1].asInt()).isValid(text(s, 2)); }},
     {"name", [](Bench& b, Step s) { return b->entry(s[1].asInt()).name(); }},
     {"figures", [](Bench& b, Step s) { return b->figures(s[1].asInt()); }},
     {"direction",
      [](Bench& b, Step s) { return int(firstFigure(b, s[1].asInt()).figure()->direction()); }},
     {"selectedFigure", [](Bench& b, Step) { return b->selectedFigure(); }},
     {"label", [](Bench& b, Step) { return b->canvas().getFirstDrawItem()->label(); }},
     {"hasPoint",
      [](Bench& b, Step s) {
          const QPoint point(s[1][0].asInt(), s[1][1].asInt());
          return b->canvas().getFirstDrawItem()->getPoints().contains(point);
      }},
     {"itemCount", [](Bench& b, Step) { return b->canvas().itemCount(BaseDrawType::None, 0); }},
     {"isDrawing", [](Bench& b, Step) { return b->panel().GetDrawStatus(); }},
     {"isEnabled", [](Bench& b, Step s) { return b->find(text(s))->isEnabled(); }},
     {"isShown", [](Bench& b, Step s) { return b->isShown(text(s)); }},
     {"isMarked", [](Bench& b, Step s) { return b->find(text(s))->property("marked").toBool(); }},
     {"exists",
      [](Bench& b, Step s) { return b->panel().findChild<QWidget*>(text(s)) != nullptr; }},
     {"text", [](Bench& b, Step s) { return editOf(b, s)->text(); }},
     {"caption",
      [](Bench& b, Step s) { return b->find(text(s))->findChild<QLabel*>("title")->text(); }},
     {"checked", [](Bench& b, Step s) { return checked(*b->find(text(s))); }},
     {"marked", [](Bench& b, Step) { return marked(b); }},
     {"notices", [](Bench& b, Step) { return b->parser().notices().join(' '); }},
     {"tells", [](Bench& b, Step s) { return b->parser().notices().join(' ').contains(text(s)); }},
     {"written",
      [](Bench& b, Step) {
          return written(b)["Rules"][0].toCompactText().section("\"Enable", 0, 0);
      }},
     {"writes",
      [](Bench& b, Step s) { return written(b).toStyledText().simplified().contains(text(s)); }}}};

const QHash<QString, SceneType> kScenes{{"Rules", SceneType::Rules},
                                        {"Lanes", SceneType::Lanes},
                                        {"CalibrateArea", SceneType::CalibrateArea}};

/// A document of a fixture, which may be the name of one.
QByteArray document(const Value& value)
{
    return value.isString() ? Fixtures::contentOf(value.asString())
                            : QByteArray::fromStdString(value.toStyledString());
}

QByteArray templateOf(const char* name)
{
    return Fixtures::contentOf(QString("templates/%1.json").arg(name));
}

} // namespace

/// What an operator does in a panel, and what comes of it.
class TstPanels : public RulesTest
{
    Q_OBJECT

private slots:
    void works_data() { Fixtures::addRows("panels"); }

    void works()
    {
        QFETCH(const Value, fixture);
        auto bench = std::make_unique<PanelBench>(
            document(fixture["template"]), document(fixture["config"]),
            kScenes[fixture["scene"].asString()], fixture["selectMode"].asBool());
        kScript.play(bench, fixture["steps"]);
    }

    void foldingMaskAndSelection()
    {
        PanelBench bench(templateOf("detection"), "{}", SceneType::Detection);
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
        PanelBench bench(templateOf("global"), "{}", SceneType::Global);
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
        PanelBench bench(templateOf("rules"), templateOf("tworules"), SceneType::Rules);
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
        PanelBench bench(templateOf("lanesofrules"), "{}", SceneType::Lanes);
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

QTEST_MAIN(TstPanels)
#include "tst_panels.moc"
