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
#include "tests/support/rulestest.h"

#include <tuple>
#include <vector>

namespace
{

/// A container with one row, and the values that the row has when it announces.
class Bench
{
public:
    explicit Bench(FacadeType facade, ValueType type, const QVariant& min = {},
                   const QVariant& max = {}, const QVariant& preset = {})
    {
        item.setKey(QStringLiteral("key"));
        item.setCaption(QStringLiteral("Caption"));
        item.setUnits(QStringLiteral("s"));
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
        return {v, v, QStringLiteral("Option ") + v, {}, isAll};
    }

    static QString text(const QVariant& value)
    {
        if (value.type() == QVariant::Size)
            return QStringLiteral("%1..%2")
                .arg(value.toSize().width())
                .arg(value.toSize().height());
        if (value.type() == QVariant::StringList)
            return value.toStringList().join(QLatin1Char('+'));
        return value.isValid() ? value.toString() : QStringLiteral("none");
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
        auto* edit = bench.row->findChild<RowEdit*>(QStringLiteral("edit"));
        auto* unit = bench.row->findChild<QLabel*>(QStringLiteral("unit"));
        QCOMPARE(edit->textMargins().right(), unit->width() + 5);
        QCOMPARE(unit->geometry().right(), edit->width() - 6);
        bench.row->setControlEnable(false);
        QVERIFY(!edit->isEnabled() && unit->isEnabled() && !bench.row->getControlEnable());
    }

    void typesIntoInputBoxes()
    {
        // The keys, what they show, and what is announced and shown once the edit is left.
        const auto check = [](const char* name, ValueType type, const QVariant& min,
                              const QVariant& max, const QVariant& loaded, const char* keys,
                              const char* shown, const char* announced, const char* left) {
            const QLocale previous;
            QLocale::setDefault(QLocale(QLocale::German));
            Bench bench(FacadeType::InputBoxNumber, type, min, max);
            QLocale::setDefault(previous);

            bench.row->loadValue(loaded);
            QCOMPARE(bench.take(), QString());
            const RowEdit* edit = bench.type("edit", keys);
            QVERIFY2(bench.shown(edit) == shown, qPrintable(name + (": " + bench.shown(edit))));
            bench.leave();
            QVERIFY2(bench.shown(edit) == left && bench.take() == announced,
                     qPrintable(name + (", left: " + bench.shown(edit))));

            // Finishing without leaving ends the same way.
            bench.row->loadValue(loaded);
            bench.type("edit", keys);
            bench.container.finishEdits();
            bench.container.finishEdits();
            QVERIFY2(bench.shown(edit) == left && bench.take() == announced, name);
        };
        const auto i = ValueType::Int;
        const auto f = ValueType::Float;
        const QVariant none;
        const QString old = QStringLiteral("old");
        check("int keeps out letters", i, none, none, 7, "a4b2", "42", "42", "42");
        check("int ends at a comma", i, 1, 30, 7, "4,75", "4!", "4", "4");
        check("int ends at a point", i, 1, 30, 7, "2.5", "2!", "2", "2");
        check("int pasted ends at a comma", i, 1, 30, 7, "^4,75", "4!", "4", "4");
        check("int not below 0", i, 1, 600, 20, "-5", "20!", "", "20");
        check("int minus in a number", i, none, none, 20, "-5-3", "-5!", "-5", "-5");
        check("int pasted with blanks", i, none, none, 20, "^ 42\n", "42", "42", "42");
        check("int pasted letters", i, none, none, 20, "^4x", "20!", "", "20");
        check("int with surplus digits", i, 1, 600, 20, "1000", "600", "600", "600");
        check("int pasted above", i, 1, 600, 20, "^1000", "600", "600", "600");
        check("int with surplus digits below", i, -600, 600, 20, "-1000", "-600", "-600", "-600");
        check("int beyond all", i, 1, 2000000000, 20, "3000000000", "2000000000", "2000000000",
              "2000000000");
        check("int emptied without a minimum", i, none, 50, 20, "", "", "", "20");
        check("int above, while typing", i, -10, 5, 3, "9", "5", "5", "5");
        check("int below is mended", i, 10, 50, 20, "3", "3", "10", "10");
        check("int emptied is mended", i, 10, 50, 20, "", "", "10", "10");
        check("int emptied below 0 is mended", i, -50, -10, -20, "", "", "-10", "-10");
        check("int emptied is refused", i, none, none, 20, "", "", "", "20");
        check("int without a maximum", i, 10, none, 20, "2147483647", "2147483647", "2147483647",
              "2147483647");
        check("int too long", i, none, none, 20, "99999999999", "9999999999", "", "20");
        check("float", f, 0.5, 10.0, 1.0, "2.755", "2.75", "2.75", "2.75");
        check("float with a comma", f, none, none, 1.0, "1,5e3", "1.53", "1.53", "1.53");
        check("float pasted with a comma", f, 0.5, 10.0, 1.0, "^\t4,75 ", "4.75", "4.75", "4.75");
        check("float ends at the second comma", f, none, none, 1.0, "1,5,2", "1.5!", "1.5", "1.5");
        check("float pasted with groups", f, none, none, 1.0, "^1.234,5", "1!", "", "1");
        check("float not below 0", f, 0.5, 10.0, 1.0, "-5", "1!", "", "1");
        check("float with surplus digits", f, 0.5, 600.0, 1.0, "1000", "600", "600", "600");
        check("float above, while typing", f, 0.5, 10.0, 1.0, "11", "10", "10", "10");
        check("float below", f, 0.5, 10.0, 1.0, "0.1", "0.1", "0.5", "0.5");
        check("float below a fine minimum", f, 0.005, 10.0, 1.0, "0", "0", "0.005", "0.005");
        check("float emptied is refused", f, none, none, 12345678.25, "", "", "", "12345678.25");
        check("text", ValueType::String, 1, 2, old, "9 & <b>", "9 & <b>", "9 & <b>", "9 & <b>");
    }

    void marksWhatItRefuses()
    {
        Bench bench(FacadeType::InputBoxNumber, ValueType::Int, 1, 30, 7);
        const QString tip = bench.row->toolTip();
        QVERIFY2(tip.contains("1 to 30") && tip.contains(" s"), qPrintable(tip));
        RowEdit* edit = bench.type("edit", QStringLiteral("1,2"));
        QVERIFY(bench.row->toolTip() != tip && bench.row->toolTip().contains(tip));
        QTest::keyClick(edit, Qt::Key_Backspace);
        QCOMPARE(bench.shown(edit) + bench.row->toolTip(), tip);
        QTest::keyClicks(edit, QStringLiteral("2,9"));
        QTest::keyClick(edit, Qt::Key_Home, Qt::ShiftModifier);
        QCOMPARE(bench.shown(edit), QStringLiteral("2"));
        QTest::keyClicks(edit, QStringLiteral("3,"));
        bench.row->loadValue(9);
        QCOMPARE(bench.shown(edit), QStringLiteral("9"));
        edit->selectAll();
        QGuiApplication::clipboard()->setText(QStringLiteral("8."));
        QVERIFY(QMetaObject::invokeMethod(edit, "paste")); // as the context menu does
        QCOMPARE(bench.shown(edit), QStringLiteral("8!"));

        // Return cannot end the edit of such a text, which stays marked until it is right.
        Bench floats(FacadeType::InputBoxNumber, ValueType::Float, 0.5, 10.0, 1.0);
        edit = floats.type("edit", QString());
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(floats.shown(edit), QStringLiteral("!"));
        QTest::keyClicks(edit, QStringLiteral("0"));
        QCOMPARE(floats.shown(edit), QStringLiteral("0!"));
        QTest::keyClicks(edit, QStringLiteral(",7"));
        QCOMPARE(floats.shown(edit), QStringLiteral("0.7"));

        // An input method and a drop are no way around.
        edit = floats.type("edit", QString());
        QInputMethodEvent committed;
        committed.setCommitString(QStringLiteral("3,"));
        QApplication::sendEvent(edit, &committed);
        QMimeData dragged;
        dragged.setText(QStringLiteral("5 \n"));
        const QPoint end = edit->rect().bottomRight();
        QDragEnterEvent entered(end, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(edit, &entered);
        QDropEvent dropped(end, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(edit, &dropped);
        QCOMPARE(floats.shown(edit), QStringLiteral("3.5"));

        // Without a value to fall back to it is the minimum, else nothing.
        for (const auto& [minimum, left] :
             {std::pair(QVariant(0.5), "0.5"), std::pair(QVariant(), "")}) {
            Bench fresh(FacadeType::InputBoxNumber, ValueType::Float, minimum);
            edit = fresh.type("edit", QStringLiteral("5"));
            QTest::keyClick(edit, Qt::Key_Backspace);
            fresh.leave();
            QCOMPARE(fresh.shown(edit) + fresh.take(), QString(left).repeated(2));
        }
    }

    /// Shown in part, and never lost: not by passing through, by keys or by Return.
    void keepsTextsTooLongToEdit()
    {
        Bench bench(FacadeType::InputBoxNumber, ValueType::String);
        const QString text = QStringLiteral("line\n").repeated(20'000);
        bench.container.setControlValue(bench.item.key(), text);
        bench.take();
        RowEdit* edit = bench.type("edit", QStringLiteral("7"));
        QTest::keyClick(edit, Qt::Key_Return);
        bench.leave();
        QVERIFY(edit->text().size() <= 2000);
        QVERIFY(!edit->toolTip().isEmpty());
        QCOMPARE(bench.row->value(), QVariant(text));
        bench.container.setControlValue(bench.item.key(), QStringLiteral("short"));
        bench.type("edit", QStringLiteral("7"));
        bench.leave();
        QCOMPARE(bench.row->value(), QVariant(QStringLiteral("7")));
        QVERIFY(edit->toolTip().isEmpty());
        edit->setMaxLength(20); // as of names
        bench.container.setControlValue(bench.item.key(), text);
        bench.type("edit", QStringLiteral("8"));
        bench.leave();
        QCOMPARE(bench.row->value(), QVariant(QStringLiteral("8")));
    }

    void linesHaveNoBreaks()
    {
        QCOMPARE(PlainText::button(QStringLiteral("a\nb\r&\u2028c")), QStringLiteral("a b && c"));
        const QString faces = PlainText::line(QStringLiteral("\U0001F600").repeated(1000));
        QVERIFY(faces.size() < 400);
        QVERIFY(faces.at(faces.size() - 2).isLowSurrogate());
        QVERIFY(PlainText::toolTip(QStringLiteral("a\nb")).contains('\n'));
        const QString label = ShortenedText::middle(QString(1000, 'x') + "12", 64);
        QVERIFY(label.size() == 64 && label.endsWith("x12"));
    }

    void finishesWithinLimits()
    {
        Bench bench(FacadeType::InputBoxNumber, ValueType::Int, 10, 50);
        auto* edit = bench.row->findChild<RowEdit*>(QStringLiteral("edit"));
        bench.row->loadValue(700); // passing through mends nothing
        edit->setFocus();
        bench.leave();
        QCOMPARE(bench.take() + edit->text(), QStringLiteral("700"));

        // Reached when text gets past the validator.
        bench.item.setRange(20, 10);
        edit->setText(QStringLiteral("15"));
        emit edit->editingFinished();
        QCOMPARE(bench.take(), QStringLiteral("20 10 15"));
    }

    void editsRanges()
    {
        Bench bench(FacadeType::NumericalInterval, ValueType::ArrayInt, {}, {}, QSize(5, 50));
        const auto edited = [&bench](const char* name, const char* keys) {
            const RowEdit* edit = bench.type(name, QLatin1String(keys));
            bench.leave();
            return QStringLiteral("%1|%2").arg(bench.take(), edit->text());
        };
        QCOMPARE(edited("minimum", "20"), QStringLiteral("20..50|20"));
        QCOMPARE(edited("minimum", "20"), QStringLiteral("|20")); // no change, nothing said
        QCOMPARE(edited("maximum", "30"), QStringLiteral("20..30|30"));
        QCOMPARE(edited("maximum", "7"), QStringLiteral("|30"));         // below: refused
        QCOMPARE(edited("minimum", "100"), QStringLiteral("30..30|30")); // at once, while typing
        QCOMPARE(bench.shown(bench.type("minimum", QStringLiteral("-5"))), QStringLiteral("30!"));
        QCOMPARE(bench.shown(bench.type("maximum", QStringLiteral("42,5"))), QStringLiteral("42!"));
        QCOMPARE(edited("maximum", "^ 30\n"), QStringLiteral("|30"));
        QCOMPARE(edited("minimum", ""), QStringLiteral("-1..30|")); // unset, not mended to 0
        QCOMPARE(edited("maximum", "4"), QStringLiteral("-1..4|4"));
        QCOMPARE(edited("maximum", ""), QStringLiteral("-1..-1|"));
        QCOMPARE(edited("minimum", "123456"), QStringLiteral("123456..-1|123456"));
        QCOMPARE(edited("maximum", "-"), QStringLiteral("|"));

        bench.row->setValue(QSize(3, 8), true);
        QCOMPARE(bench.take(), QStringLiteral("3..8"));
        for (const QVariant& value : {QVariant(), QVariant(4), QVariant(QStringLiteral("[1,2]"))})
            bench.row->setValue(value, true);
        QCOMPARE(bench.take(), QString());
        QCOMPARE(bench.row->value(), QVariant(QSize(3, 8)));
        QCOMPARE(bench.row->findChildren<QValidator*>().size(), 2); // of all that there were

        // Only the minimum is checked while it is typed, against what the other edit shows.
        bench.row->findChild<RowEdit*>(QStringLiteral("maximum"))->setText(QStringLiteral("6"));
        QCOMPARE(bench.type("minimum", QStringLiteral("7"))->text(), QStringLiteral("6"));
        QCOMPARE(bench.take(), QStringLiteral("6..8"));
    }

    void clicksCheckBoxes()
    {
        Bench bench(FacadeType::CheckBox, ValueType::String);
        const auto click = [&bench](int index) {
            bench.option<CheckBoxWidget>(index)->click();
            return bench.take();
        };
        QVERIFY(!bench.row->value().isValid());
        QCOMPARE(click(1), QStringLiteral("2"));
        QCOMPARE(click(1), QStringLiteral("2")); // the last one stays
        QCOMPARE(click(0), QStringLiteral("1+2"));
        QCOMPARE(click(2), QStringLiteral("all"));
        QCOMPARE(click(0), QStringLiteral("1"));
        // Values set by code are no clicks.
        bench.row->setValue(QStringList{QStringLiteral("all"), QStringLiteral("1")}, false);
        QCOMPARE(bench.take(), QString());
        QCOMPARE(Bench::text(bench.row->value()), QStringLiteral("1+all"));
        QCOMPARE(click(2), QStringLiteral("1"));
        bench.row->setValue(QStringLiteral("ALL"), true);
        QCOMPARE(bench.take(), QStringLiteral("none"));
        bench.row->setValue(AbsurdDocuments::ofOneHash() << QStringLiteral("2"), true);
        QCOMPARE(bench.take(), QStringLiteral("2"));
    }

    void clicksRadioButtons()
    {
        Bench bench(FacadeType::RadioButton, ValueType::Int);
        QVERIFY(!bench.row->value().isValid());
        bench.option<RadioButtonWidget>(1)->click();
        QCOMPARE(bench.take(), QStringLiteral("2"));
        QCOMPARE(bench.row->value(), QVariant(2));
        bench.row->setValue(1, true);
        QCOMPARE(bench.take(), QString()); // a match says nothing
        bench.row->setValue(9, true);
        QCOMPARE(bench.take(), QStringLiteral("1")); // no match keeps the selection
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
        const QString one = QStringLiteral("1");
        const QString two = QStringLiteral("2");
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
        second.setKey(QStringLiteral("second"));
        second.setFacade(FacadeType::NumericalInterval);
        bench.container.setControlEnable(false);
        auto* row = createControlTabel(&second, &bench.container);
        bench.container.addControl(row, true);
        QVERIFY(!row->isEnabled());
        bench.container.setControlEnable(true);
        QCOMPARE(bench.container.findControl(QStringLiteral("second")), row);
        QVERIFY(bench.container.setControlValue(QStringLiteral("second"), QSize(1, 2)));
        QVERIFY(!bench.container.setControlValue(QStringLiteral("third"), 1));

        // An announcement in the middle may take rows away.
        bench.type("edit", QStringLiteral("5"));
        connect(&bench.container, &ControlItemWidgetTabel::sgnValueChanged, row,
                [row] { delete row; });
        bench.container.finishEdits();
        QCOMPARE(bench.take(), QStringLiteral("5"));
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
        buttons[0]->setText(QStringLiteral("Rule1"));
        buttons[1]->setText(QStringLiteral("A&Rule1"));
        QCOMPARE(buttons[0]->text(), QStringLiteral("Rule1"));
        QCOMPARE(buttons[1]->text(), QStringLiteral("A&&Ru..."));
        QCOMPARE(buttons[1]->toolTip(), QStringLiteral("A&Rule1"));
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
        const QString name = QStringLiteral("enable");
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
