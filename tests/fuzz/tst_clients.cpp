#include "fuzz/client/clientplace.h"
#include "tests/support/clientwindow.h"
#include "tests/support/loadedplugin.h"
#include "tests/support/mailbox.h"

using namespace SampleDocuments;

namespace
{

/// Types wherever the focus is.
void type(const ClientPlace& place, const QString& text)
{
    for (const QChar key : text)
        QTest::keyClick(place.windowHandle(), key.toLatin1());
}

/// What of @p text arrives in the client's own edit.
QString arriving(const ClientPlace& place, const QString& text)
{
    place.edit()->clear();
    type(place, text);
    return place.edit()->text();
}

QLineEdit* editOf(const ClientWindow& window, const char* row)
{
    return window.find<QWidget>(row)->findChild<QLineEdit*>();
}

bool hasFocus(const ClientWindow& window)
{
    return window.content->isAncestorOf(QApplication::focusWidget());
}

} // namespace

/// What clients do with rules windows besides sending them messages.
class TstClients : public RulesTest
{
    Q_OBJECT

    void prepare() override { m_plugin.load(); }
    KQPluginAPI::IAbstractWidget* widget() { return m_plugin.widget(); }

    LoadedPlugin m_plugin;

private slots:
    void hiddenWindowsLeaveTheKeyboardAlone_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("tabs") << int(ClientPlace::Tabs);
        QTest::newRow("stack") << int(ClientPlace::Stack);
        QTest::newRow("hidden") << int(ClientPlace::Column);
    }

    void hiddenWindowsLeaveTheKeyboardAlone()
    {
        QFETCH(const int, kind);
        const ClientWindow first(widget());
        const ClientWindow second(widget());
        ClientPlace client{ClientPlace::Kind(kind)};
        client.take(first.parent);
        client.take(second.parent);
        client.turn(0);
        client.show();
        QApplication::setActiveWindow(&client);
        client.edit()->setFocus();
        first.load("C1", rule("Gate"));
        QCOMPARE(arriving(client, "abc"), QString("abc"));
        second.load("C2", rule("Gate"));
        QCOMPARE(arriving(client, "abc"), QString("abc"));
        // What a load gives comes when the window is seen, and once.
        client.turn(2);
        QVERIFY(hasFocus(second));
        client.edit()->setFocus();
        client.turn(1);
        QVERIFY(hasFocus(first));
        client.edit()->setFocus();
        client.turn(2);
        QCOMPARE(arriving(client, "abc"), QString("abc"));
        // Left while it is worked in, with and without another place for the focus.
        for (const bool isLonely : {false, true}) {
            client.turn(2);
            editOf(second, "high")->setFocus();
            client.edit()->setEnabled(!isLonely);
            client.turn(0);
            QCoreApplication::processEvents();
            QVERIFY(!hasFocus(second));
            type(client, "3");
            QCOMPARE(editOf(second, "high")->text(), QString("6"));
            client.edit()->setEnabled(true);
            client.edit()->setFocus();
            QCOMPARE(arriving(client, "abc"), QString("abc"));
        }
        first.load("C3", rule("Gate"));
        first.clear();
        second.load("C4", rule("Gate"), R"(, "editable": false)");
        client.turn(1);
        QCOMPARE(arriving(client, "abc"), QString("abc"));
    }

    void queryChangesNothing()
    {
        const Mailbox mailbox;
        const ClientWindow window(widget());
        window.load("C1", rule("Gate"));
        auto* const edit = editOf(window, "high");
        edit->setFocus();
        window.query("C1");
        QTest::keyClick(edit, Qt::Key_Backspace);
        window.query("C1");
        QCOMPARE(edit->text(), QString());
        QTest::keyClick(edit, Qt::Key_7);
        edit->selectAll();
        window.query("C1");
        QCOMPARE(edit->selectedText() + QApplication::focusWidget()->metaObject()->className(),
                 QString("7") + edit->metaObject()->className());
        QVERIFY_BOTH(edit->hasFocus(), edit->isModified());
    }

    /// Keys that the client has commands for are the window's only where it does something.
    void takesKeysOnlyWhereTheyAreNeeded()
    {
        const ClientWindow window(widget());
        auto* const dialog = new QDialog(window.parent);
        (new QHBoxLayout(dialog))->addWidget(window.content);
        int commands = 0;
        const QStringList keys{"Ctrl+Z", "Ctrl+Y", "Backspace", "Return", "Esc", "Space"};
        for (const QString& key : keys) {
            auto* const command = new QAction(dialog);
            command->setShortcut(QKeySequence(key));
            dialog->addAction(command);
            connect(command, &QAction::triggered, command, [&commands] { ++commands; });
        }
        dialog->show();
        QApplication::setActiveWindow(dialog);
        window.load("C1", rule("Gate"));
        auto* const picture = window.find<QWidget>("playerWin");
        const auto press = [&](QWidget* focused, const QString& key) {
            focused->setFocus();
            const int code = int(QKeySequence(key)[0]);
            const int before = commands;
            QTest::keyClick(dialog->windowHandle(), Qt::Key(code & ~Qt::CTRL),
                            Qt::KeyboardModifiers(code & Qt::CTRL));
            return commands == before;
        };
        for (const QString& key : keys)
            QVERIFY2(!press(picture, key), qPrintable(key));
        window.click("addRule");
        for (const char* key : {"Space", "Backspace", "Return", "Ctrl+Z", "Ctrl+Y", "Esc"})
            QVERIFY2(press(picture, key), key);
        for (const char* key : {"Backspace", "Return", "Esc"})
            QVERIFY2(press(editOf(window, "high"), key), key);
        // Its own letters first, then what was done before.
        QTest::keyClick(editOf(window, "high"), Qt::Key_5);
        QVERIFY(press(editOf(window, "high"), "Ctrl+Z"));
        QCOMPARE(editOf(window, "high")->text(), QString("0"));
        QVERIFY(dialog->isVisible());
    }

    /// Whatever the client hears of while a window goes, it may answer by a message to it.
    void endsWhileItIsSpokenTo()
    {
        const Mailbox mailbox;
        const ClientWindow window(widget());
        window.load("C1", rule("Gate"));
        window.content->setParent(nullptr);
        window.content->show();
        QApplication::setActiveWindow(window.content);
        editOf(window, "high")->setFocus();
        int heard = 0;
        const auto speak = [&] {
            ++heard;
            window.clear();
            window.query("C1");
        };
        QObject client;
        connect(qApp, &QApplication::focusChanged, &client, speak);
        connect(window.find<QWidget>("playerWin"), &QObject::destroyed, speak);
        delete window.content;
        QVERIFY(heard >= 2);
    }
};

QTEST_MAIN(TstClients)
#include "tst_clients.moc"
