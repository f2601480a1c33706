#include "tests/support/rulestest.h"
#include "workbench/inputevents.h"

#include <QMouseEvent>
#include <QPushButton>
#include <QShortcut>

namespace
{

/// Writes down what it is told.
class Told : public QWidget
{
public:
    Told()
    {
        setFocusPolicy(Qt::ClickFocus);
        resize(200, 100);
    }

    QStringList events;

protected:
    bool event(QEvent* event) override
    {
        if (auto* const mouse = dynamic_cast<QMouseEvent*>(event))
            events.append(QString("%1 %2,%3 %4")
                              .arg(int(event->type()))
                              .arg(mouse->pos().x())
                              .arg(mouse->pos().y())
                              .arg(int(mouse->buttons())));
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
            auto* const key = static_cast<QKeyEvent*>(event);
            events.append(QString("%1 %2 %3")
                              .arg(int(event->type()))
                              .arg(key->key(), 0, 16)
                              .arg(key->text()));
        }
        return QWidget::event(event);
    }
};

} // namespace

/// Events of sessions are those of a window system.
class TstInputEvents : public RulesTest
{
    Q_OBJECT

private slots:
    void pressesWhereItIsSaid()
    {
        Told told;
        told.show();
        QVERIFY(QTest::qWaitForWindowExposed(&told));
        for (const QPoint& at : {QPoint(0, 0), QPoint(199, 99)}) {
            const QString place = QString(" %1,%2 ").arg(at.x()).arg(at.y());
            told.events.clear();
            InputEvents::click(&told, Qt::RightButton, Qt::NoModifier, at);
            QCOMPARE(told.events, QStringList({"2" + place + "2", "3" + place + "0"}));
            told.events.clear();
            InputEvents::drag(&told, {50, 50}, at, Qt::NoModifier);
            QVERIFY2(told.events.contains("5" + place + "1"), qPrintable(told.events.join('\n')));
            QCOMPARE(told.events.last(), "3" + place + "0");
        }
        QVERIFY2(told.hasFocus() || told.focusWidget() == &told, "the focus follows");
    }

    void pressesKeysAsAKeyboard()
    {
        Told told;
        told.show();
        InputEvents::key(&told, Qt::Key_A, "A", Qt::ShiftModifier | Qt::ControlModifier);
        QCOMPARE(told.events, QStringList({"6 1000020 ", "6 1000021 ", "6 41 A", "7 41 A",
                                           "7 1000021 ", "7 1000020 "}));
        const QPair<int, QString> keys[] = {{Qt::Key_A, "a"},       {Qt::Key_7, "7"},
                                            {Qt::Key_Return, "\r"}, {Qt::Key_Adiaeresis, "ä"},
                                            {Qt::Key_Insert, ""},   {Qt::Key_F1, ""}};
        for (const auto& key : keys)
            QCOMPARE(InputEvents::typedBy(key.first), key.second);
    }

    void shortcutsComeFirst()
    {
        Told told;
        QShortcut undo(QKeySequence("Ctrl+Z"), &told);
        QSignalSpy spy(&undo, &QShortcut::activated);
        told.show();
        told.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&told));
        InputEvents::key(&told, Qt::Key_Z, "z", Qt::ControlModifier);
        QCOMPARE(spy.count(), 1);
        QVERIFY(!told.events.contains("6 5a z"));
    }

    void endsWithItsWidget()
    {
        const QPointer<QPushButton> button = new QPushButton("Close");
        button->show();
        connect(button, &QPushButton::pressed, this, [&button] { delete button; });
        InputEvents::click(button, Qt::LeftButton, Qt::NoModifier, {5, 5});
        QVERIFY(!button);
    }
};

QTEST_MAIN(TstInputEvents)
#include "tst_inputevents.moc"
