#include "Protocol/ruleparser.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/shortenedtext.h"
#include "tabel/checkboxwidget.h"
#include "tabel/controlfactory.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/controltabel.h"
#include "tabel/drawitembutton.h"
#include "tabel/plaintext.h"
#include "tabel/radiobuttonwidget.h"
#include "tabel/rowedit.h"
#include "tabel/ruleitemwidgettabel.h"
#include "tests/support/absurddocuments.h"
#include "tests/support/fixtures.h"
#include "tests/support/rulestest.h"

#include <tuple>
#include <vector>

using kql::Json::Value;

namespace
{

/// A container with one row, and the values that the row has when it announces.
class Bench
{
public:
    explicit Bench(FacadeType facade, ValueType type, const QVariant& min = {},
                   const QVariant& max = {}, const QVariant& preset = {})
    {
        item.setKey(QString("key"));
        item.setCaption(QString("Caption"));
        item.setUnits(QString("s"));
        item.setFacade(facade);
        item.setValueType(type);
        item.setRange(min, max);
        item.setDefaultValue(preset);
        item.setEnumeration({option("1"), option("2"), option("all", true)});
        row = createControlTabel(&item, &container);
        container.addControl(row, true);
        other = new QLineEdit;
        container.addWidget(other, true);
        QObject::connect(&container, &ControlItemWidgetTabel::sgnValueChanged, &container,
                         [this](const QString& key) {
                             QVariant value;
                             if (container.getControlValue(key, value))
                                 announced.append(text(value));
                         });
        container.resize(340, 100);
        container.show();
        QApplication::setActiveWindow(&container);
    }

    ~Bench() { container.disconnect(); } // what is typed still is not announced any more

    static EnumOption option(const char* value, bool isAll = false)
    {
        const QString v = QLatin1String(value);
        return {v, v, QString("Option ") + v, {}, isAll};
    }

    static QString text(const QVariant& value)
    {
        if (value.type() == QVariant::Size)
            return QString("%1..%2").arg(value.toSize().width()).arg(value.toSize().height());
        if (value.type() == QVariant::StringList)
            return value.toStringList().join(QLatin1Char('+'));
        return value.isValid() ? value.toString() : QString("none");
    }

    /// Replaces the text of an edit by typing, or by pasting what follows a leading "^"; the edit
    /// keeps the focus.
    RowEdit* type(const char* name, const QString& keys) const
    {
        auto* edit = row->findChild<RowEdit*>(QLatin1String(name));
        edit->setFocus();
        edit->selectAll();
        if (keys.isEmpty()) {
            QTest::keyClick(edit, Qt::Key_Delete);
        } else if (keys.startsWith('^')) {
            QGuiApplication::clipboard()->setText(keys.mid(1));
            QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
        } else {
            QTest::keyClicks(edit, keys);
        }
        return edit;
    }

    /// The text of an edit, and "!" where the row is marked.
    QString shown(const RowEdit* edit) const
    {
        return edit->text() + QLatin1String(row->isMarked() ? "!" : "");
    }

    void leave() const { other->setFocus(); }

    template<class Box>
    Box* option(int index) const
    {
        return static_cast<Box*>(row->items().value(index));
    }

    /// What was announced since the last call, joined by blanks.
    QString take() { return QStringList(std::exchange(announced, {})).join(QLatin1Char(' ')); }

    RuleProtocolItem item;
    ControlItemWidgetTabel container;
    ControlTabel* row = nullptr;
    QLineEdit* other = nullptr;
    QStringList announced;
};

} // namespace

class TstRows : public RulesTest
{
    Q_OBJECT

private slots:
    void unitsLieInTheirEdits()
    {
        const Bench bench(FacadeType::InputBoxNumber, ValueType::Int);
        auto* edit = bench.row->findChild<RowEdit*>(QString("edit"));
        auto* unit = bench.row->findChild<QLabel*>(QString("unit"));
        QCOMPARE(edit->textMargins().right(), unit->width() + 5);
        QCOMPARE(unit->geometry().right(), edit->width() - 6);
        bench.row->setControlEnable(false);
        QVERIFY(!edit->isEnabled() && unit->isEnabled() && !bench.row->getControlEnable());
    }

    void typesIntoInputBoxes_data() { Fixtures::addRows("inputboxes.json"); }

    /// The keys, what they show, and what is announced and shown once the edit is left.
    void typesIntoInputBoxes()
    {
        QFETCH(const Value, fixture);
        const auto text = [&](const char* name) { return fixture[name].asString(); };
        const QLocale previous;
        QLocale::setDefault(QLocale(QLocale::German));
        Bench bench(FacadeType::InputBoxNumber, RuleParser::parseToValueType(text("type")),
                    Fixtures::valueOf(fixture["minimum"]), Fixtures::valueOf(fixture["maximum"]));
        QLocale::setDefault(previous);

        const QVariant loaded = Fixtures::valueOf(fixture["loaded"]);
        bench.row->loadValue(loaded);
        QCOMPARE(bench.take(), QString());
        const RowEdit* edit = bench.type("edit", text("keys"));
        QCOMPARE(bench.shown(edit), text("shown"));
        bench.leave();
        QCOMPARE(bench.shown(edit), text("left"));
        QCOMPARE(bench.take(), text("announced"));

        // Finishing without leaving ends the same way.
        bench.row->loadValue(loaded);
        bench.type("edit", text("keys"));
        bench.container.finishEdits();
        bench.container.finishEdits();
        QCOMPARE(bench.shown(edit), text("left"));
        QCOMPARE(bench.take(), text("announced"));
    }

    void marksWhatItRefuses()
    {
        Bench bench(FacadeType::InputBoxNumber, ValueType::Int, 1, 30, 7);
        const QString tip = bench.row->toolTip();
        QVERIFY2(tip.contains("1 to 30") && tip.contains(" s"), qPrintable(tip));
        RowEdit* edit = bench.type("edit", QString("1,2"));
        QVERIFY(bench.row->toolTip() != tip && bench.row->toolTip().contains(tip));
        QTest::keyClick(edit, Qt::Key_Backspace);
        QCOMPARE(bench.shown(edit) + bench.row->toolTip(), tip);
        QTest::keyClicks(edit, QString("2,9"));
        QTest::keyClick(edit, Qt::Key_Home, Qt::ShiftModifier);
        QCOMPARE(bench.shown(edit), QString("2"));
        QTest::keyClicks(edit, QString("3,"));
        bench.row->loadValue(9);
        QCOMPARE(bench.shown(edit), QString("9"));
        edit->selectAll();
        QGuiApplication::clipboard()->setText(QString("8."));
        QVERIFY(QMetaObject::invokeMethod(edit, "paste")); // as the context menu does
        QCOMPARE(bench.shown(edit), QString("8!"));

        // Return cannot end the edit of such a text, which stays marked until it is right.
        Bench floats(FacadeType::InputBoxNumber, ValueType::Float, 0.5, 10.0, 1.0);
        edit = floats.type("edit", QString());
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(floats.shown(edit), QString("!"));
        QTest::keyClicks(edit, QString("0"));
        QCOMPARE(floats.shown(edit), QString("0!"));
        QTest::keyClicks(edit, QString(",7"));
        QCOMPARE(floats.shown(edit), QString("0.7"));

        // An input method and a drop are no way around.
        edit = floats.type("edit", QString());
        QInputMethodEvent committed;
        committed.setCommitString(QString("3,"));
        QApplication::sendEvent(edit, &committed);
        QMimeData dragged;
        dragged.setText(QString("5 \n"));
        const QPoint end = edit->rect().bottomRight();
        QDragEnterEvent entered(end, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(edit, &entered);
        QDropEvent dropped(end, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(edit, &dropped);
        QCOMPARE(floats.shown(edit), QString("3.5"));

        // Without a value to fall back to it is the minimum, else nothing.
        for (const auto& [minimum, left] :
             {std::pair(QVariant(0.5), "0.5"), std::pair(QVariant(), "")}) {
            Bench fresh(FacadeType::InputBoxNumber, ValueType::Float, minimum);
            edit = fresh.type("edit", QString("5"));
            QTest::keyClick(edit, Qt::Key_Backspace);
            fresh.leave();
            QCOMPARE(fresh.shown(edit) + fresh.take(), QString(left).repeated(2));
        }
    }

    /// Shown in part, and never lost: not by passing through, by keys or by Return.
    void keepsTextsTooLongToEdit()
    {
        Bench bench(FacadeType::InputBoxNumber, ValueType::String);
        const QString text = QString("line\n").repeated(20'000);
        bench.container.setControlValue(bench.item.key(), text);
        bench.take();
        RowEdit* edit = bench.type("edit", QString("7"));
        QTest::keyClick(edit, Qt::Key_Return);
        bench.leave();
        QVERIFY(edit->text().size() <= 2000);
        QVERIFY(!edit->toolTip().isEmpty());
        QCOMPARE(bench.row->value(), QVariant(text));
        bench.container.setControlValue(bench.item.key(), QString("short"));
        bench.type("edit", QString("7"));
        bench.leave();
        QCOMPARE(bench.row->value(), QVariant(QString("7")));
        QVERIFY(edit->toolTip().isEmpty());
        edit->setMaxLength(20); // as of names
        bench.container.setControlValue(bench.item.key(), text);
        bench.type("edit", QString("8"));
        bench.leave();
        QCOMPARE(bench.row->value(), QVariant(QString("8")));
    }

    void linesHaveNoBreaks()
    {
        QCOMPARE(PlainText::button(QString("a\nb\r&\u2028c")), QString("a b && c"));
        const QString faces = PlainText::line(QString("\U0001F600").repeated(1000));
        QVERIFY(faces.size() < 400);
        QVERIFY(faces.at(faces.size() - 2).isLowSurrogate());
        QVERIFY(PlainText::toolTip(QString("a\nb")).contains('\n'));
        const QString label = ShortenedText::middle(QString(1000, 'x') + "12", 64);
        QVERIFY(label.size() == 64 && label.endsWith("x12"));
    }

    void finishesWithinLimits()
    {
        Bench bench(FacadeType::InputBoxNumber, ValueType::Int, 10, 50);
        auto* edit = bench.row->findChild<RowEdit*>(QString("edit"));
        bench.row->loadValue(700); // passing through mends nothing
        edit->setFocus();
        bench.leave();
        QCOMPARE(bench.take() + edit->text(), QString("700"));

        // Reached when text gets past the validator.
        bench.item.setRange(20, 10);
        edit->setText(QString("15"));
        emit edit->editingFinished();
        QCOMPARE(bench.take(), QString("20 10 15"));
    }

    void editsRanges()
    {
        Bench bench(FacadeType::NumericalInterval, ValueType::ArrayInt, {}, {}, QSize(5, 50));
        const auto edited = [&bench](const char* name, const char* keys) {
            const RowEdit* edit = bench.type(name, QLatin1String(keys));
            bench.leave();
            return QString("%1|%2").arg(bench.take(), edit->text());
        };
        QCOMPARE(edited("minimum", "20"), QString("20..50|20"));
        QCOMPARE(edited("minimum", "20"), QString("|20")); // no change, nothing said
        QCOMPARE(edited("maximum", "30"), QString("20..30|30"));
        QCOMPARE(edited("maximum", "7"), QString("|30"));         // below: refused
        QCOMPARE(edited("minimum", "100"), QString("30..30|30")); // at once, while typing
        QCOMPARE(bench.shown(bench.type("minimum", QString("-5"))), QString("30!"));
        QCOMPARE(bench.shown(bench.type("maximum", QString("42,5"))), QString("42!"));
        QCOMPARE(edited("maximum", "^ 30\n"), QString("|30"));
        QCOMPARE(edited("minimum", ""), QString("-1..30|")); // unset, not mended to 0
        QCOMPARE(edited("maximum", "4"), QString("-1..4|4"));
        QCOMPARE(edited("maximum", ""), QString("-1..-1|"));
        QCOMPARE(edited("minimum", "123456"), QString("123456..-1|123456"));
        QCOMPARE(edited("maximum", "-"), QString("|"));

        bench.row->setValue(QSize(3, 8), true);
        QCOMPARE(bench.take(), QString("3..8"));
        for (const QVariant& value : {QVariant(), QVariant(4), QVariant(QString("[1,2]"))})
            bench.row->setValue(value, true);
        QCOMPARE(bench.take(), QString());
        QCOMPARE(bench.row->value(), QVariant(QSize(3, 8)));
        QCOMPARE(bench.row->findChildren<QValidator*>().size(), 2); // of all that there were

        // Only the minimum is checked while it is typed, against what the other edit shows.
        bench.row->findChild<RowEdit*>(QString("maximum"))->setText(QString("6"));
        QCOMPARE(bench.type("minimum", QString("7"))->text(), QString("6"));
        QCOMPARE(bench.take(), QString("6..8"));
    }

    void clicksCheckBoxes()
    {
        Bench bench(FacadeType::CheckBox, ValueType::String);
        const auto click = [&bench](int index) {
            bench.option<CheckBoxWidget>(index)->click();
            return bench.take();
        };
        QVERIFY(!bench.row->value().isValid());
        QCOMPARE(click(1), QString("2"));
        QCOMPARE(click(1), QString("2")); // the last one stays
        QCOMPARE(click(0), QString("1+2"));
        QCOMPARE(click(2), QString("all"));
        QCOMPARE(click(0), QString("1"));
        // Values set by code are no clicks.
        bench.row->setValue(QStringList{QString("all"), QString("1")}, false);
        QCOMPARE(bench.take(), QString());
        QCOMPARE(Bench::text(bench.row->value()), QString("1+all"));
        QCOMPARE(click(2), QString("1"));
        bench.row->setValue(QString("ALL"), true);
        QCOMPARE(bench.take(), QString("none"));
        bench.row->setValue(AbsurdDocuments::ofOneHash() << QString("2"), true);
        QCOMPARE(bench.take(), QString("2"));
    }

    void clicksRadioButtons()
    {
        Bench bench(FacadeType::RadioButton, ValueType::Int);
        QVERIFY(!bench.row->value().isValid());
        bench.option<RadioButtonWidget>(1)->click();
        QCOMPARE(bench.take(), QString("2"));
        QCOMPARE(bench.row->value(), QVariant(2));
        bench.row->setValue(1, true);
        QCOMPARE(bench.take(), QString()); // a match says nothing
        bench.row->setValue(9, true);
        QCOMPARE(bench.take(), QString("1")); // no match keeps the selection
        bench.row->loadValue(9);
        QVERIFY(!bench.row->value().isValid());
        bench.option<RadioButtonWidget>(0)->click();
        bench.option<RadioButtonWidget>(1)->click();
        QVERIFY(!bench.option<RadioButtonWidget>(0)->isChecked());
        // Built anew, the options are there once.
        bench.row->setProtocolItem(&bench.item);
        QCOMPARE(bench.row->items().size(), 3);
        QCOMPARE(bench.row->findChild<QButtonGroup*>()->buttons().size(), 3);
    }

    void loadsAndRemembers()
    {
        const QString one = QString("1");
        const QString two = QString("2");
        const auto box = FacadeType::InputBoxNumber;
        using Row = std::tuple<FacadeType, ValueType, QVariant, QVariant>;
        for (const auto& [facade, type, first, second] : std::vector<Row>{
                 {box, ValueType::Int, 1, 2},
                 {box, ValueType::Float, 1.5, 2.5},
                 {box, ValueType::String, one, two},
                 {FacadeType::CheckBox, ValueType::String, QStringList{one}, QStringList{two}},
                 {FacadeType::RadioButton, ValueType::String, one, two},
                 {FacadeType::Bool, ValueType::Bool, true, false},
                 {FacadeType::NumericalInterval, ValueType::ArrayInt, QSize(1, 2), QSize(2, 3)}}) {
            Bench bench(facade, type);
            const QVariant blank = bench.row->value();
            bench.row->loadValue(first);
            QCOMPARE(bench.row->value(), first);
            bench.row->loadValue(QVariant());
            QCOMPARE(bench.row->value(), blank);
            QVERIFY(!bench.row->isModified());

            // Back to the first value after another one was announced: it has to be stored again.
            bench.row->loadValue(first);
            if (facade == FacadeType::RadioButton)
                bench.option<RadioButtonWidget>(1)->click();
            else if (facade == FacadeType::Bool)
                bench.option<QCheckBox>(0)->click();
            else
                bench.row->setValue(second, true);
            QCOMPARE(bench.take(), Bench::text(second));
            bench.row->setValue(first, false);
            QVERIFY(bench.row->isModified());
            QCOMPARE(bench.take(), QString());
        }
    }

    void containerFindsAndFinishes()
    {
        Bench bench(FacadeType::InputBoxNumber, ValueType::Int);
        RuleProtocolItem second;
        second.setKey(QString("second"));
        second.setFacade(FacadeType::NumericalInterval);
        bench.container.setControlEnable(false);
        auto* row = createControlTabel(&second, &bench.container);
        bench.container.addControl(row, true);
        QVERIFY(!row->isEnabled());
        bench.container.setControlEnable(true);
        QCOMPARE(bench.container.findControl(QString("second")), row);
        QVERIFY(bench.container.setControlValue(QString("second"), QSize(1, 2)));
        QVERIFY(!bench.container.setControlValue(QString("third"), 1));

        // An announcement in the middle may take rows away.
        bench.type("edit", QString("5"));
        connect(&bench.container, &ControlItemWidgetTabel::sgnValueChanged, row,
                [row] { delete row; });
        bench.container.finishEdits();
        QCOMPARE(bench.take(), QString("5"));
        QCOMPARE(bench.container.controls().size(), 1);
        QVERIFY(!second.row());
        bench.container.deleteWidget(bench.row);
        QVERIFY(bench.container.controls().isEmpty());
        bench.row->setValue(3, true);
        QCOMPARE(bench.take(), QString());
    }

    void buttons()
    {
        RuleItemWidgetTabel table;
        QSignalSpy changed(&table, &RuleItemWidgetTabel::sgnCheckBtnChanged);
        QSignalSpy clicked(&table, &RuleItemWidgetTabel::sgnBtnClicked);
        table.setControlEnable(false);
        for (int id : {11, 12, 13})
            table.addButton(new DrawItemButton(id, id + 100, BaseDrawType::Polygon));
        const auto buttons = table.buttons();
        QVERIFY(!buttons[0]->isEnabled());
        table.setControlEnable(true);
        buttons[0]->setText(QString("Rule1"));
        buttons[1]->setText(QString("A&Rule1"));
        QCOMPARE(buttons[0]->text(), QString("Rule1"));
        QCOMPARE(buttons[1]->text(), QString("A&&Ru..."));
        QCOMPARE(buttons[1]->toolTip(), QString("A&Rule1"));
        QCOMPARE(table.findDataButton(113), buttons[2]);
        QVERIFY(!table.findButton(113));

        table.setCurrentButton(buttons[1], false);
        QCOMPARE(changed.count(), 0);
        buttons[2]->click();
        buttons[2]->click();
        QCOMPARE(changed.count(), 2);
        QCOMPARE(clicked.value(1).value(0).toInt(), 13);
        QVERIFY(buttons[2]->isChecked() && !buttons[1]->isChecked());
        QCOMPARE(table.currentButton(), buttons[2]);
        table.setCurrentButton(nullptr, true);
        QVERIFY(!table.currentButton() && buttons[2]->isChecked());
        QCOMPARE(changed.count(), 2);

        table.setCurrentButton(buttons[0], false);
        table.removeWidget(buttons[0]);
        QVERIFY(!table.currentButton());
        buttons[0]->click();
        QCOMPARE(clicked.count(), 2);
        // Whoever hears of a press may refill the table.
        connect(&table, &RuleItemWidgetTabel::sgnCheckBtnChanged, this, [&] { table.deleteAll(); });
        buttons[1]->click();
        QVERIFY(table.buttons().isEmpty() && table.isEmpty());
        QCOMPARE(clicked.value(2).value(0).toInt(), 12);
    }

    void enableCheckBoxFollows()
    {
        RuleItemWidgetTabel table;
        table.resize(300, 50);
        QSignalSpy enabled(&table, &RuleItemWidgetTabel::sgnEnableChanged);
        auto* button = new DrawItemButton(0, 7, BaseDrawType::None, &table);
        table.addButton(button);
        button->setEnabledState(false);
        button->setEnableCheckBoxVisible(true);
        table.show();
        const QString name = QString("enable");
        auto* box = table.findChild<QCheckBox*>(name);
        QVERIFY(box && box->isVisible() && !box->isChecked());
        table.relayout(40, 0);
        QCOMPARE(box->geometry(), QRect(button->x() - 1, button->y() + 12 - 7, 17, 14));
        box->click();
        QCOMPARE(enabled.value(0), (QVariantList{7, true}));
        QVERIFY(button->enabledState());
        button->setEnabledState(false);
        QVERIFY(!box->isChecked());
        QCOMPARE(enabled.count(), 1);

        table.setControlEnable(false);
        QVERIFY(!box->isEnabled());
        const QPointer<QCheckBox> watched(box);
        table.deleteWidget(button);
        QVERIFY(!table.findChild<QCheckBox*>(name) && !box->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!watched);
    }
};

QTEST_MAIN(TstRows)
#include "tst_rows.moc"
