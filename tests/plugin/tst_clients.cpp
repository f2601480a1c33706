#include "host/iabstractui.h"
#include "host/iclientuipluginapi.h"
#include "tests/support/clientwindow.h"
#include "tests/support/mailbox.h"
#include "tests/support/rulestest.h"

#include <QLineEdit>
#include <QPluginLoader>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

#include <functional>

using namespace SampleDocuments;
using KQPluginAPI::IClientUIPluginAPI;

namespace
{

/// A client's window: an edit of its own above pages, of which one is shown. The first is plain.
struct Client {
    Client(const QByteArray& kind, const QList<QWidget*>& windows) : pages({new QWidget})
    {
        pages += windows;
        auto* const all = new QVBoxLayout(&top);
        all->addWidget(own);
        if (kind == "tabs") {
            auto* const tabs = new QTabWidget;
            for (QWidget* page : qAsConst(pages))
                tabs->addTab(page, "page");
            all->addWidget(tabs);
            turn = [tabs](int shown) { tabs->setCurrentIndex(shown); };
        } else if (kind == "stack") {
            auto* const stack = new QStackedWidget;
            for (QWidget* page : qAsConst(pages))
                stack->addWidget(page);
            all->addWidget(stack);
            turn = [stack](int shown) { stack->setCurrentIndex(shown); };
        } else {
            for (QWidget* page : qAsConst(pages))
                all->addWidget(page);
            turn = [this](int shown) {
                for (QWidget* page : qAsConst(pages))
                    page->setVisible(page == pages[shown]);
            };
        }
        turn(0);
        top.show();
        QApplication::setActiveWindow(&top);
        own->setFocus();
    }
    /// Types wherever the focus is.
    void type(const QString& text)
    {
        for (const QChar key : text)
            QTest::keyClick(top.windowHandle(), key.toLatin1());
    }
    /// What of @p text arrives in the client's own edit.
    QString arriving(const QString& text)
    {
        own->clear();
        type(text);
        return own->text();
    }

    QWidget top;
    QLineEdit* own = new QLineEdit;
    QList<QWidget*> pages;
    std::function<void(int)> turn;
};

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

    void prepare() override
    {
        m_plugin = qobject_cast<IClientUIPluginAPI*>(m_loader.instance());
        QVERIFY2(m_plugin, qPrintable(m_loader.errorString()));
        m_plugin->Init();
    }
    KQPluginAPI::IAbstractWidget* widget() { return m_plugin->GetUI()->CreateWidget(); }

    QPluginLoader m_loader{RULES_BIN_DIR "/IntelligentRulesUI.so"};
    IClientUIPluginAPI* m_plugin = nullptr;

private slots:
    void hiddenWindowsLeaveTheKeyboardAlone_data()
    {
        QTest::addColumn<QByteArray>("kind");
        for (const char* kind : {"tabs", "stack", "hidden"})
            QTest::newRow(kind) << QByteArray(kind);
    }

    void hiddenWindowsLeaveTheKeyboardAlone()
    {
        QFETCH(const QByteArray, kind);
        const ClientWindow first(widget());
        const ClientWindow second(widget());
        Client client(kind, {first.parent, second.parent});
        first.load("C1", rule("Gate"));
        QCOMPARE(client.arriving("abc"), QString("abc"));
        second.load("C2", rule("Gate"));
        QCOMPARE(client.arriving("abc"), QString("abc"));
        // What a load gives comes when the window is seen, and once.
        client.turn(2);
        QVERIFY(hasFocus(second));
        client.own->setFocus();
        client.turn(1);
        QVERIFY(hasFocus(first));
        client.own->setFocus();
        client.turn(2);
        QCOMPARE(client.arriving("abc"), QString("abc"));
        // Left while it is worked in, with and without another place for the focus.
        for (const bool isLonely : {false, true}) {
            client.turn(2);
            editOf(second, "high")->setFocus();
            client.own->setEnabled(!isLonely);
            client.turn(0);
            QVERIFY(!hasFocus(second));
            client.type("3");
            QCOMPARE(editOf(second, "high")->text(), QString("6"));
            client.own->setEnabled(true);
            client.own->setFocus();
            QCOMPARE(client.arriving("abc"), QString("abc"));
        }
        first.load("C3", rule("Gate"));
        first.clear();
        second.load("C4", rule("Gate"), R"(, "editable": false)");
        client.turn(1);
        QCOMPARE(client.arriving("abc"), QString("abc"));
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
        QVERIFY(edit->hasFocus() && edit->isModified());
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
