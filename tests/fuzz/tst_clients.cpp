#include "fuzz/client/clientplace.h"
#include "tests/support/clientwindow.h"
#include "tests/support/loadedplugin.h"
#include "tests/support/mailbox.h"

#include <QClipboard>

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

/// A dialog of the client's around a window; it has commands with these keys.
class CommandDialog : public QDialog
{
public:
    CommandDialog(const ClientWindow& window, const QStringList& keys) : QDialog(window.parent)
    {
        (new QHBoxLayout(this))->addWidget(window.content);
        for (const QString& key : keys) {
            auto* const command = new QAction(this);
            command->setShortcut(QKeySequence(key));
            addAction(command);
            connect(command, &QAction::triggered, command, [this] { ++m_commands; });
        }
        show();
        QApplication::setActiveWindow(this);
    }

    /// Presses @p key in @p focused; whether no command had it.
    bool leaves(QWidget* focused, const QString& key) const
    {
        focused->setFocus();
        const int code = int(QKeySequence(key)[0]);
        const int before = m_commands;
        QTest::keyClick(windowHandle(), Qt::Key(code & ~Qt::CTRL),
                        Qt::KeyboardModifiers(code & Qt::CTRL));
        return m_commands == before;
    }

private:
    int m_commands = 0;
};

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
        const QStringList keys{"Ctrl+Z", "Ctrl+Y", "Backspace", "Return", "Esc", "Space"};
        const auto* const dialog = new CommandDialog(window, keys);
        window.load("C1", rule("Gate"));
        auto* const picture = window.find<QWidget>("playerWin");
        const auto press = [&](QWidget* focused, const QString& key) {
            return dialog->leaves(focused, key);
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

    /// The clipboard is the client's, too.
    void takesKeysOnlyWhereThereIsSomethingToCopy()
    {
        const ClientWindow window(widget());
        const CommandDialog& dialog = *new CommandDialog(window, {"Ctrl+C", "Ctrl+V", "Ctrl+D"});
        auto* const picture = window.find<QWidget>("playerWin");
        const auto left = [&](QWidget* focused) {
            QString keys;
            for (const QString key : {"Ctrl+C", "Ctrl+V", "Ctrl+D"})
                keys += dialog.leaves(focused, key) ? key.back() : QChar('-');
            return keys;
        };
        const auto load = [&](const QByteArray& more = {}) {
            window.load("C1", rule("Gate"), more);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        };
        QGuiApplication::clipboard()->setText("client's");
        QCOMPARE(left(picture), QString("---"));
        load(R"(, "editable": false)");
        QCOMPARE(left(picture), QString("---"));
        load(R"(, "selectionMode": true)");
        QCOMPARE(left(picture), QString("---"));
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("client's"));
        load();
        QCOMPARE(left(editOf(window, "high")), QString("CVD"));
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("client's"));
        // Three rules are the most.
        QCOMPARE(left(picture), QString("CV-"));
        QVERIFY(!QGuiApplication::clipboard()->mimeData()->hasText());
        QCOMPARE(left(editOf(window, "level")), QString("CV-"));
        load();
        window.click("addRule");
        QCOMPARE(left(picture), QString("---"));
        load();
        QVERIFY(dialog.leaves(picture, "Ctrl+V"));
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
