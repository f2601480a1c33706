#include "draw/basedraw.h"
#include "tabel/controltabel.h"
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
};

QTEST_MAIN(TstPanels)
#include "tst_panels.moc"
