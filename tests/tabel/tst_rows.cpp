#include "Protocol/ruleparser.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/shortenedtext.h"
#include "tabel/controlfactory.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/controltabel.h"
#include "tabel/drawitembutton.h"
#include "tabel/inputboxwidget.h"
#include "tabel/plaintext.h"
#include "tabel/rowedit.h"
#include "tabel/ruleitemwidgettabel.h"
#include "tabel/titlelabel.h"
#include "tests/support/absurddocuments.h"
#include "tests/support/rulestest.h"
#include "tests/support/script.h"

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
        item.setKey("key");
        item.setCaption("Caption");
        item.setUnits("s");
        item.setFacade(facade);
        item.setValueType(type);
        item.setRange(min, max);
        item.setDefaultValue(preset);
        item.setEnumeration({option("1"), option("2"), option("all", true)});
        row = createControlTabel(&item, &container);
        container.addControl(row, true);
        blank = row->value();
        tip = row->toolTip();
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

    // What is typed still is not announced any more, and ends while there is a container to tell.
    ~Bench()
    {
        container.disconnect();
        container.hide();
    }

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
            return value.toStringList().join('+');
        return value.isValid() ? value.toString() : QString("none");
    }

    /// Replaces the text of an edit by typing, or by pasting what follows a leading "^"; the edit
    /// keeps the focus.
    RowEdit* type(const QString& name, const QString& keys) const
    {
        auto* edit = row->findChild<RowEdit*>(name);
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

    /// What was announced since the last call, joined by blanks.
    QString take() { return QStringList(std::exchange(announced, {})).join(' '); }

    RuleProtocolItem item;
    ControlItemWidgetTabel container;
    ControlTabel* row = nullptr;
    QVariant blank; ///< what the row has at first
    QString tip;    ///< as the row has it then
    QLineEdit* other = nullptr;
    QStringList announced;
};

using Step = const Value&;

RowEdit* editOf(Bench& bench, Step step)
{
    return bench.row->findChild<RowEdit*>(step[1].asString());
}

/// As the context menu does.
void paste(Bench& bench, Step step)
{
    editOf(bench, step)->selectAll();
    QGuiApplication::clipboard()->setText(step[2].asString());
    QVERIFY(QMetaObject::invokeMethod(editOf(bench, step), "paste"));
}

/// As input methods do.
void commit(Bench& bench, Step step)
{
    QInputMethodEvent committed;
    committed.setCommitString(step[2].asString());
    QApplication::sendEvent(editOf(bench, step), &committed);
}

void drop(Bench& bench, Step step)
{
    QMimeData dragged;
    dragged.setText(step[2].asString());
    const QPoint end = editOf(bench, step)->rect().bottomRight();
    QDragEnterEvent entered(end, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editOf(bench, step), &entered);
    QDropEvent dropped(end, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editOf(bench, step), &dropped);
}

void key(Bench& bench, Step step)
{
    const QKeySequence keys(step[2].asString());
    QTest::keyClick(editOf(bench, step), Qt::Key(keys[0] & ~Qt::KeyboardModifierMask),
                    Qt::KeyboardModifiers(keys[0] & Qt::KeyboardModifierMask));
}

QString tip(Bench& bench, Step)
{
    const QString shown = bench.row->toolTip();
    if (shown == bench.tip)
        return "the usual one";
    return shown.contains(bench.tip) ? QString("the usual one and more") : shown;
}

QAbstractButton* option(Bench& bench, Step step)
{
    return qobject_cast<QAbstractButton*>(bench.row->items().value(step[1].asInt()));
}

/// What an operator, or the panel, does with a row; and what there is to see.
const Script<Bench> kScript{
    {{"type", [](Bench& b, Step s) { b.type(s[1].asString(), s[2].asString()); }},
     {"keys", [](Bench& b, Step s) { QTest::keyClicks(editOf(b, s), s[2].asString()); }},
     {"key", key},
     {"paste", paste},
     {"commit", commit},
     {"drop", drop},
     {"setText", [](Bench& b, Step s) { editOf(b, s)->setText(s[2].asString()); }},
     {"focus", [](Bench& b, Step s) { editOf(b, s)->setFocus(); }},
     {"leave", [](Bench& b, Step) { b.leave(); }},
     {"click", [](Bench& b, Step s) { option(b, s)->click(); }},
     {"load", [](Bench& b, Step s) { b.row->loadValue(Fixtures::valueOf(s[1])); }},
     {"set", [](Bench& b, Step s) { b.row->setValue(Fixtures::valueOf(s[1]), true); }},
     {"setQuietly", [](Bench& b, Step s) { b.row->setValue(Fixtures::valueOf(s[1]), false); }},
     {"rebuild", [](Bench& b, Step) { b.row->setProtocolItem(&b.item); }}},
    {{"announced", [](Bench& b, Step) { return b.take(); }},
     {"shown", [](Bench& b, Step s) { return b.shown(editOf(b, s)); }},
     {"tip", [](Bench& b, Step s) { return b.row->toolTip().contains(s[1].asString()); }},
     {"tipIs", tip},
     {"value", [](Bench& b, Step) { return b.row->value(); }},
     {"isBlank", [](Bench& b, Step) { return b.row->value() == b.blank; }},
     {"isModified", [](Bench& b, Step) { return b.row->isModified(); }},
     {"isChecked", [](Bench& b, Step s) { return option(b, s)->isChecked(); }},
     {"options", [](Bench& b, Step) { return b.row->items().size(); }},
     {"grouped",
      [](Bench& b, Step) { return b.row->findChild<QButtonGroup*>()->buttons().size(); }},
     {"validators", [](Bench& b, Step) { return b.row->findChildren<QValidator*>().size(); }}}};

} // namespace

class TstRows : public RulesTest
{
    Q_OBJECT

private slots:
    void unitsLieInTheirEdits()
    {
        const Bench bench(FacadeType::InputBoxNumber, ValueType::Int);
        auto* edit = bench.row->findChild<RowEdit*>("edit");
        auto* unit = bench.row->findChild<QLabel*>("unit");
        QCOMPARE(edit->textMargins().right(), unit->width() + 5);
        QCOMPARE(unit->geometry().right(), edit->width() - 6);
        bench.row->setControlEnable(false);
        QVERIFY_BOTH(!edit->isEnabled(), unit->isEnabled());
        QVERIFY(!bench.row->getControlEnable());
    }

    void longTextsStayReadable()
    {
        const QString unit = QString("kilometres ").repeated(9);
        auto* const box = new InputBoxWidget;
        const std::unique_ptr<QWidget> owner(box);
        box->resize(200, 30);
        box->setUnit(unit);
        auto* const label = box->findChild<TitleLabel*>("unit");
        QVERIFY_BOTH(label->isElided(), label->width() <= 100);
        const QPoint at = label->geometry().center();
        QHelpEvent asked(QEvent::ToolTip, at, box->mapToGlobal(at));
        QApplication::sendEvent(box, &asked);
        QVERIFY(QToolTip::text().contains(unit.trimmed()));

        Bench bench(FacadeType::Bool, ValueType::Bool);
        TitleLabel* const caption = bench.row->titleLabel();
        const int width = caption->fontMetrics().horizontalAdvance(caption->text()) + 1;
        bench.row->setCaptionWidth(width, 128);
        bench.row->setMark("why");
        QVERIFY_BOTH(!caption->isElided(), caption->width() > width);
        bench.row->setMark({});
        QCOMPARE(caption->width(), width);
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

    void works_data() { Fixtures::addRows("rows.json"); }

    void works()
    {
        QFETCH(const Value, fixture);
        Bench bench(RuleParser::parseToFacadeType(fixture["facade"].asString()),
                    RuleParser::parseToValueType(fixture["type"].asString()),
                    Fixtures::valueOf(fixture["minimum"]), Fixtures::valueOf(fixture["maximum"]),
                    Fixtures::valueOf(fixture["default"]));
        kScript.play(bench, fixture["steps"]);
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
        QVERIFY_BOTH(label.size() == 64, label.endsWith("x12"));
    }

    void finishesWithinLimits()
    {
        Bench bench(FacadeType::InputBoxNumber, ValueType::Int, 10, 50);
        auto* edit = bench.row->findChild<RowEdit*>("edit");
        // Reached when text gets past the validator.
        bench.item.setRange(20, 10);
        edit->setText("15");
        emit edit->editingFinished();
        QCOMPARE(bench.take(), QString("20 10 15"));
    }

    void findsChoicesThatShareTheirHashes()
    {
        Bench bench(FacadeType::CheckBox, ValueType::String);
        bench.row->setValue(AbsurdDocuments::ofOneHash() << QString("2"), true);
        QCOMPARE(bench.take(), QString("2"));
    }

    void containerFindsAndFinishes()
    {
        Bench bench(FacadeType::InputBoxNumber, ValueType::Int);
        RuleProtocolItem second;
        second.setKey("second");
        second.setFacade(FacadeType::NumericalInterval);
        bench.container.setControlEnable(false);
        auto* row = createControlTabel(&second, &bench.container);
        bench.container.addControl(row, true);
        QVERIFY(!row->isEnabled());
        bench.container.setControlEnable(true);
        QCOMPARE(bench.container.findControl(QString("second")), row);
        QVERIFY(bench.container.setControlValue("second", QSize(1, 2)));
        QVERIFY(!bench.container.setControlValue("third", 1));

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
        buttons[0]->setText("Rule1");
        buttons[1]->setText("A&Rule1");
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
        QVERIFY_BOTH(buttons[2]->isChecked(), !buttons[1]->isChecked());
        QCOMPARE(table.currentButton(), buttons[2]);
        table.setCurrentButton(nullptr, true);
        QVERIFY_BOTH(!table.currentButton(), buttons[2]->isChecked());
        QCOMPARE(changed.count(), 2);

        table.setCurrentButton(buttons[0], false);
        table.removeWidget(buttons[0]);
        QVERIFY(!table.currentButton());
        buttons[0]->click();
        QCOMPARE(clicked.count(), 2);
        // Whoever hears of a press may refill the table.
        connect(&table, &RuleItemWidgetTabel::sgnCheckBtnChanged, this, [&] { table.deleteAll(); });
        buttons[1]->click();
        QVERIFY_BOTH(table.buttons().isEmpty(), table.isEmpty());
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
        QVERIFY_BOTH(box, box->isVisible());
        QVERIFY(!box->isChecked());
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
        QVERIFY_BOTH(!table.findChild<QCheckBox*>(name), !box->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!watched);
    }
};

QTEST_MAIN(TstRows)
#include "tst_rows.moc"
