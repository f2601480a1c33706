#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "scene/entryrows.h"
#include "scene/lanesscene.h"
#include "scene/scenefactory.h"
#include "tabel/controlfactory.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/controltabel.h"
#include "tabel/drawitembutton.h"
#include "tabel/ruleitemwidgettabel.h"
#include "tabel/titlelabel.h"
#include "tabel/widgettabelview.h"
#include "tests/support/rulestest.h"
#include "tests/support/script.h"

using kql::Json::Value;

namespace
{

using Step = const Value&;

QString text(Step step, int position = 1)
{
    return step[position].asString();
}

/// One scene's panel on a template and a configuration, worked on as an operator does: clicks and
/// keys on the widgets, mouse events on a canvas of 1024 x 1024 pixels.
class Panel
{
public:
    Panel(const QByteArray& templateText, const QByteArray& config, SceneType type,
          bool selectMode = false)
    {
        if (!parser.parseTemplate(QString::fromUtf8(templateText)) ||
            !parser.readData(QString::fromUtf8(config)))
            qFatal("template or configuration of the test is not usable");
        parser.findLosses();
        data = parser.getData(type);
        m_view.setFixedWidth(335);
        m_view.resize(335, 600);
        scene = createScene(type, &m_view);
        scene->setSelectMode(selectMode);
        scene->setRuleData(data);
        scene->SetDrawStatus(false);
        m_view.addWidgetLayout(scene);
        canvas().setCanvasSize(1024, 1024);
        scene->setSelected(true);
        m_view.show();
        QApplication::setActiveWindow(&m_view);
        wanted = std::make_unique<QSignalSpy>(scene, &BaseTabelScene::sgnTrySelectedlScene);
        entered = std::make_unique<QSignalSpy>(scene, &BaseTabelScene::sgnEntered);
    }
    ~Panel()
    {
        if (scene)
            scene->setRuleData(nullptr);
    }

    DrawScene& canvas() const { return *data->getDrawScene(); }
    /// The entry at the position, from 0, that a step names.
    RuleDataInfo& entry(Step step) const
    {
        return *data->getAllData().at(static_cast<std::size_t>(step[1].asInt()));
    }
    QList<DrawItem*> figures(Step step) const
    {
        return canvas().getItemListByDataId(entry(step).id());
    }

    /// What a step names in the panel; a failed test and null when there is none.
    template<class T = QWidget>
    T* find(const QString& name) const
    {
        auto* widget = scene->findChild<T*>(name);
        if (!widget)
            QTest::qFail(qPrintable(QStringLiteral("no widget ") + name), __FILE__, __LINE__);
        return widget;
    }
    QLineEdit* edit(Step step) const { return find(text(step))->findChild<QLineEdit*>(); }
    Value written() const
    {
        Value config;
        if (!parser.writeData(config))
            qWarning("not written");
        return config;
    }

    RuleParser parser;
    RuleData* data = nullptr;
    QPointer<BaseTabelScene> scene;
    std::unique_ptr<QSignalSpy> wanted; ///< requests of the panel to be the selected one
    std::unique_ptr<QSignalSpy> entered;

private:
    WidgetTabelView m_view;
};

using Bench = std::unique_ptr<Panel>;

/// What can be clicked, in its middle.
void click(QWidget* widget)
{
    if (!widget || !widget->isVisible() || !widget->isEnabled())
        QTest::qFail("nothing to click there", __FILE__, __LINE__);
    else
        QTest::mouseClick(widget, Qt::LeftButton);
}

/// Where a widget has its middle, on whatever lies over it there.
void clickOver(Bench& bench, Step step)
{
    const auto* widget = bench->find(text(step));
    const QPoint middle = widget->mapTo(bench->scene, widget->rect().center());
    click(bench->scene->childAt(middle));
}

/// The option of a stored value.
void clickOption(Bench& bench, Step step)
{
    for (auto* box : bench->find(text(step))->findChildren<QAbstractButton*>()) {
        if (box->property("value").toString() == text(step, 2))
            QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    }
}

RuleItemWidgetTabel& tableOf(Bench& bench, Step step, int position)
{
    const QString name = step.size() > position ? text(step, position) : QString("drawItems");
    return *bench->find<RuleItemWidgetTabel>(name);
}

/// Replaces the text of a row's edit, leaving the edit in progress.
void type(Bench& bench, Step step)
{
    auto* edit = bench->edit(step);
    QTest::mouseClick(edit, Qt::LeftButton);
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    // Keys by their text: input methods deliver characters that no key stands for.
    for (const QChar& character : text(step, 2)) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QApplication::sendEvent(edit, &press);
    }
}

void key(Bench& bench, Step step)
{
    const bool isSpace = text(step, 2) == "Space";
    QWidget* edit = isSpace ? bench->find(text(step)) : bench->edit(step);
    QTest::keyClick(edit, isSpace ? Qt::Key_Space : Qt::Key_Return);
}

void focus(Bench& bench, Step step)
{
    QWidget* edit = bench->edit(step);
    (edit ? edit : bench->find(text(step)))->setFocus(Qt::TabFocusReason);
}

/// Where the focus comes to be.
QString tab(Bench&, Step)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    return QApplication::focusWidget()->objectName();
}

/// What a panel is asked for when it may have no data.
void askInVain(Bench& bench, Step)
{
    bench->scene->sltRedrawItem();
    bench->scene->sltTabelRuleFucBtnClicked(1);
    bench->scene->sltTabelAttrControlValueChange("note");
}

/// What is saved is read again.
void reload(Bench& bench, Step step)
{
    const QByteArray saved = QByteArray::fromStdString(bench->written().toStyledString());
    bench = std::make_unique<Panel>(Fixtures::contentOf(text(step)), saved,
                                    bench->data->getSceneType());
}

/// The full texts of a table's buttons, the current one in square brackets.
QString buttons(Bench& bench, Step step)
{
    const RuleItemWidgetTabel& table = tableOf(bench, step, 1);
    QStringList texts;
    for (const DrawItemButton* button : table.buttons()) {
        const bool isCurrent = button == table.currentButton();
        texts.append(isCurrent ? '[' + button->fullText() + ']' : button->fullText());
    }
    return texts.join(' ');
}

/// "item key: point count" of each figure of an entry in canvas order; "..." behind those that
/// are not finished.
QString figures(Bench& bench, Step step)
{
    QStringList texts;
    for (const DrawItem* item : bench->figures(step))
        texts.append(item->templateKey() + ": " + QString::number(item->getPoints().size()) +
                     (item->isFinished() ? "" : "..."));
    return texts.join(", ");
}

/// Kind of what is selected on the canvas: its template item's key; empty for nothing.
QString selectedFigure(Bench& bench, Step)
{
    const DrawItem* item = bench->canvas().selectedItem(bench->data->getSelectedDataId());
    return item ? item->templateKey() : QString();
}

QString marked(Bench& bench, Step)
{
    QStringList names;
    for (const ControlTabel* row : bench->scene->findChildren<ControlTabel*>()) {
        if (row->isMarked() && !row->toolTip().isEmpty())
            names.append(row->objectName());
    }
    return names.join(' ');
}

QString checked(Bench& bench, Step step)
{
    for (const auto* box : bench->find(text(step))->findChildren<QAbstractButton*>()) {
        if (box->isChecked())
            return box->text();
    }
    return {};
}

/// What an operator, or a client, does; and what there is to see.
const Script<Bench> kScript{
    {{"click", [](Bench& b, Step s) { click(b->find(text(s))); }},
     {"clickOver", clickOver},
     {"clickLast",
      [](Bench& b, Step s) { b->find(text(s))->findChildren<QAbstractButton*>().last()->click(); }},
     {"pick", [](Bench& b, Step s) { click(tableOf(b, s, 2).buttons().value(s[1].asInt())); }},
     {"option", clickOption},
     {"type", type},
     {"enter",
      [](Bench& b, Step s) {
          type(b, s);
          QTest::keyClick(b->edit(s), Qt::Key_Return);
      }},
     {"key", key},
     {"focus", focus},
     {"press",
      [](Bench& b, Step s) {
          for (const QPoint& point : Fixtures::pointsOf(s[1]))
              b->canvas().addDrawPoint(DrawScene::DrawMouseLeftPress, point);
      }},
     {"pressRight",
      [](Bench& b, Step) { b->canvas().addDrawPoint(DrawScene::DrawMouseRightPress, {}); }},
     {"childFunction",
      [](Bench& b, Step s) { b->scene->sltTabelChildRuleFucBtnClicked(s[1].asInt()); }},
     {"finish", [](Bench& b, Step) { b->scene->finishEdits(); }},
     {"fold", [](Bench& b, Step s) { b->scene->setFold(s[1].asBool()); }},
     {"select", [](Bench& b, Step s) { b->scene->setSelected(s[1].asBool()); }},
     {"lock", [](Bench& b, Step) { b->scene->setUIEditable(false); }},
     {"letGo", [](Bench& b, Step) { b->scene->setRuleData(nullptr); }},
     {"askInVain", askInVain},
     {"takeUp", [](Bench& b, Step) { b->scene->setRuleData(b->data); }},
     {"delete", [](Bench& b, Step) { delete b->scene; }},
     {"removeFirst",
      [](Bench& b, Step) { b->canvas().removeItem(b->canvas().getFirstDrawItem()->itemId()); }},
     {"reload", reload}},
    {{"buttons", buttons},
     {"message", [](Bench& b, Step) { return b->canvas().message(); }},
     {"value", [](Bench& b, Step s) { return b->entry(s).value(text(s, 2)); }},
     {"isValid", [](Bench& b, Step s) { return b->entry(s).isValid(text(s, 2)); }},
     {"name", [](Bench& b, Step s) { return b->entry(s).name(); }},
     {"figures", figures},
     {"direction",
      [](Bench& b, Step s) { return int(b->figures(s).first()->figure()->direction()); }},
     {"selectedFigure", selectedFigure},
     {"label", [](Bench& b, Step) { return b->canvas().getFirstDrawItem()->label(); }},
     {"hasPoint",
      [](Bench& b, Step s) {
          const QPoint point(s[1][0].asInt(), s[1][1].asInt());
          return b->canvas().getFirstDrawItem()->getPoints().contains(point);
      }},
     {"itemCount", [](Bench& b, Step) { return b->canvas().itemCount(BaseDrawType::None, 0); }},
     {"isDrawing", [](Bench& b, Step) { return b->scene->GetDrawStatus(); }},
     {"isEnabled", [](Bench& b, Step s) { return b->find(text(s))->isEnabled(); }},
     {"isShown", [](Bench& b, Step s) { return b->find(text(s))->isVisible(); }},
     {"is", [](Bench& b, Step s) { return b->find(text(s))->property(qPrintable(text(s, 2))); }},
     {"isFolded", [](Bench& b, Step) { return b->scene->getFold(); }},
     {"isOnlyItsTitle",
      [](Bench& b, Step) { return b->scene->height() == b->find("titleBar")->height() + 2; }},
     {"wanted", [](Bench& b, Step) { return b->wanted->count(); }},
     {"entered", [](Bench& b, Step) { return b->entered->count(); }},
     {"hasFocus", [](Bench& b, Step s) { return b->edit(s)->hasFocus(); }},
     {"tab", tab},
     {"exists",
      [](Bench& b, Step s) { return b->scene->findChildren<QWidget*>(text(s)).size() == 1; }},
     {"text", [](Bench& b, Step s) { return b->edit(s)->text(); }},
     {"caption",
      [](Bench& b, Step s) { return b->find(text(s))->findChild<QLabel*>("title")->text(); }},
     {"checked", checked},
     {"marked", marked},
     {"notices", [](Bench& b, Step) { return b->parser.notices().join(' '); }},
     {"tells", [](Bench& b, Step s) { return b->parser.notices().join(' ').contains(text(s)); }},
     {"written",
      [](Bench& b, Step) {
          return b->written()["Rules"][0].toCompactText().section("\"Enable", 0, 0);
      }},
     {"writes", [](Bench& b, Step s) {
          return b->written().toStyledText().simplified().contains(text(s));
      }}}};

const QHash<QString, SceneType> kScenes{{"Rules", SceneType::Rules},
                                        {"Lanes", SceneType::Lanes},
                                        {"Global", SceneType::Global},
                                        {"Detection", SceneType::Detection},
                                        {"CalibrateArea", SceneType::CalibrateArea}};

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
        auto bench = std::make_unique<Panel>(
            Fixtures::document(fixture["template"]), Fixtures::document(fixture["config"]),
            kScenes[fixture["scene"].asString()], fixture["selectMode"].asBool());
        kScript.play(bench, fixture["steps"]);
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
