#include "fuzz/onepicture.h"
#include "host/video/channelsources.h"
#include "tests/stream/hostilecamera.h"
#include "tests/support/boxanswerer.h"
#include "tests/support/clientwindow.h"
#include "tests/support/examplefiles.h"
#include "tests/support/loadedplugin.h"
#include "tests/support/mailbox.h"

#include <QMenu>
#include <functional>
#include <limits>
#include <malloc.h>

using namespace SampleDocuments;
using kql::Json::Value;
using KQPluginAPI::IAbstractWidget;

namespace
{

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kIsMemoryCounted = false;
constexpr int kLoads = 150;
#else
constexpr bool kIsMemoryCounted = true;
constexpr int kLoads = 1000;
#endif

const QByteArray kBroken = rule("Gate", R"(, "High": 0)");
const QByteArray kTwins = rule("A") + ", " + rule("A");

UICommonMdl::ChannelSources& sources()
{
    return KQGUI::KQSingleton<UICommonMdl::ChannelSources>::Instance();
}

using Window = ClientWindow;
using Happening = std::function<void()>;

/// Something that a window is in the middle of when something else happens to it.
struct Moment {
    const char* name;
    std::function<void(const Window&, const Happening&)> reach;
    const char* posts = "";    ///< ids of what the window posts when nothing interferes
    bool isUnfinished = false; ///< as the window then answers
};

enum What { WindowDeleted, ParentDeleted, Ended, Cleared, LoadedAnew, Queried };

} // namespace

/// The real plug-in: what is asked of it, and taken from it, while it is busy.
class TstLifetimes : public RulesTest
{
    Q_OBJECT

public slots:
    void sltSizeReported()
    {
        std::exchange(m_whileReporting, [] {})();
    }

private:
    void prepare() override
    {
        sources().setDefaultAddress("grey:");
        connect(qApp, &QApplication::focusChanged, this,
                [this] { std::exchange(m_whileFocusing, [] {})(); });
        sources().addMaker([this](const QString& address, const auto&) {
            std::exchange(m_whileMaking, [] {})();
            return address == "grey:" ? std::make_unique<OnePicture>(QSize(640, 360)) : nullptr;
        });
    }

    void prepareTest() override { m_plugin.load(); }
    IAbstractWidget* widget() { return m_plugin.widget(); }

    /// Of the first entry.
    static QMenu* openMenu(const Window& window)
    {
        auto* const table = window.find<QWidget>("drawItems");
        auto* const button = table->findChild<QAbstractButton*>();
        QTest::keyClick(button, Qt::Key_F10, Qt::ShiftModifier);
        return window.content->findChild<QMenu*>("entryMenu");
    }

    /// A button that opens a box; posted before the click, the happening comes before the answer.
    static Moment box(const char* name, const QByteArray& rules, const char* button,
                      const char* posts = "", bool isUnfinished = false)
    {
        const auto reach = [=](const Window& window, const Happening& happen) {
            window.load("C1", rules);
            const auto inBox = [happen] {
                QVERIFY(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()));
                happen();
            };
            QMetaObject::invokeMethod(qApp, inBox, Qt::QueuedConnection);
            window.click(button);
        };
        return {name, reach, posts, isUnfinished};
    }

    QList<Moment> moments()
    {
        const auto connects = [this](const Window& window, const Happening& happen) {
            window.load("C1", rule("Gate"),
                        ", \"rtspUrl\": \"" + m_silent.address().toLatin1() + "\"");
            const auto* const surface = window.find<QRtspVideoWnd>("playerWin");
            QVERIFY(surface->statusText().contains("Connecting"));
            happen();
        };
        const auto draws = [](const Window& window, const Happening& happen) {
            window.load("C1", rule("Gate"));
            window.click("addRule");
            window.press({300, 100});
            happen();
        };
        const auto types = [](const Window& window, const Happening& happen) {
            window.load("C1", rule("Gate"));
            auto* const edit = window.find<QWidget>("high")->findChild<QLineEdit*>();
            edit->setFocus();
            QTest::keyClick(edit, Qt::Key_Backspace);
            QTest::keyClick(edit, Qt::Key_7);
            happen();
        };
        const auto loads = [this](const Window& window, const Happening& happen) {
            m_whileMaking = happen;
            window.load("C1", rule("Gate"));
        };
        const auto reports = [this](const Window& window, const Happening& happen) {
            m_whileReporting = happen;
            connect(window.content, SIGNAL(sgnNotifyVideoSize(int, int)), this,
                    SLOT(sltSizeReported()));
            window.load("C1", rule("Gate"));
        };
        const auto opensMenu = [](const Window& window, const Happening& happen) {
            window.load("C1", rule("Gate"));
            openMenu(window);
            happen();
        };
        const auto choosesInMenu = [](const Window& window, const Happening& happen) {
            window.load("C1", rule("Gate"));
            openMenu(window)->actions()[3]->trigger(); // duplicate
            happen();
            QCoreApplication::processEvents();
        };
        return {box("error", kBroken, "btnSave"),
                box("error about names", kTwins, "btnSave"),
                box("question before it saves", rule("Gate"), "btnSave", "996"),
                box("question before it leaves", rule("Gate"), "btnCancel", "996", true),
                box("notice", rule("Gate"), "delete"),
                {"connecting", connects},
                {"drawing", draws, "", true},
                {"a menu is open", opensMenu},
                {"something was chosen in a menu", choosesInMenu},
                {"typing", types},
                {"asking for the picture", loads},
                {"told the picture's size", reports}};
    }

    /// The client hears of the focus that leaves a widget while something is done to it.
    QList<Moment> focusMoments()
    {
        const auto movesFocus = [this](const char* name, auto act) {
            return [=](const Window& window, const Happening& happen) {
                window.load("C1", rule("Gate"));
                // What gets the focus outlives what happens: Qt touches it again.
                QWidget client;
                window.parent->setParent(&client);
                window.parent->show();
                client.show();
                QApplication::setActiveWindow(&client);
                window.find<QWidget>(name)->setFocus();
                QWidget* const focused = QApplication::focusWidget();
                QVERIFY_BOTH(focused, window.content->isAncestorOf(focused));
                QTest::keyClick(focused, Qt::Key_7);
                m_whileFocusing = happen;
                act(window);
                if (window.parent)
                    window.parent->setParent(nullptr);
            };
        };
        const auto loadsLocked = [](const Window& window) {
            window.load("C1", rule("Gate"), R"(, "editable": false)");
        };
        const auto adds = [](const Window& window) { window.click("addRule"); };
        const auto turnsPage = [](const Window& window) {
            window.parent->hide();
            QCoreApplication::processEvents();
        };
        const auto picksOther = [](const Window& window) {
            QVERIFY(
                QMetaObject::invokeMethod(window.find<QWidget>("global"), "sgnTrySelectedlScene"));
        };
        return {{"focus leaves a row that goes", movesFocus("high", loadsLocked)},
                {"focus leaves a button that hides", movesFocus("btnSave", loadsLocked)},
                {"focus leaves a button that is disabled", movesFocus("addRule", adds)},
                {"focus leaves a page that is turned", movesFocus("high", turnsPage)},
                {"focus leaves a section for another one", movesFocus("high", picksOther)}};
    }

    void happen(What what, Window& window)
    {
        switch (what) {
        case WindowDeleted:
            return delete window.content;
        case ParentDeleted:
            return delete window.parent;
        case Ended:
            return m_plugin->UnInit();
        case Cleared:
            return window.clear();
        case LoadedAnew:
            return window.load("C2", rule("Other"));
        case Queried:
            return window.query("C1");
        }
    }

    static int used()
    {
        const auto info = mallinfo2();
        return int(info.uordblks + info.hblkhd);
    }

    HostileCamera m_silent;
    LoadedPlugin m_plugin; ///< anew for each test
    Happening m_whileMaking = [] {};
    Happening m_whileReporting = [] {};
    Happening m_whileFocusing = [] {};

private slots:
    void survives_data()
    {
        QTest::addColumn<int>("moment");
        QTest::addColumn<int>("what");
        const char* const names[] = {"window deleted", "parent deleted", "module ended",
                                     "cleared",        "loaded anew",    "queried"};
        const QList<Moment> all = moments() + focusMoments();
        for (int moment = 0; moment < all.size(); ++moment) {
            for (int what = WindowDeleted; what <= Queried; ++what)
                QTest::addRow("%s: %s", all[moment].name, names[what]) << moment << what;
        }
    }

    void survives()
    {
        QFETCH(const int, moment);
        QFETCH(const int, what);
        const Moment during = (moments() + focusMoments()).at(moment);
        Mailbox mailbox;
        BoxAnswerer boxes(QMessageBox::Yes);
        Window window(widget());
        bool happened = false;
        during.reach(window, [&] {
            happened = true;
            happen(What(what), window);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        });
        QVERIFY(happened);
        QCOMPARE(window.content.isNull(), what == WindowDeleted || what == ParentDeleted);
        if (what == LoadedAnew || what == Queried)
            QCOMPARE(window.channel(), QString(what == Queried ? "C1" : "C2"));
        else if (window.content)
            QVERIFY_BOTH(window.channel().isEmpty(), window.picture().isEmpty());

        const QList<Mailbox::Message> messages = mailbox.take();
        QStringList ids;
        for (const Mailbox::Message& message : messages)
            ids.append(QString::number(message.id));
        const QString expected = what == Queried ? QString("223 ") + during.posts : QString();
        QCOMPARE(ids.join(' '), expected.trimmed());
        if (what == Queried)
            QCOMPARE(Mailbox::json(messages[0].p2.toString())["unFinishedDraw"].asBool(),
                     during.isUnfinished);

        // The module goes on: the same window if it is there, and another one.
        m_plugin->Init();
        Window another(widget());
        another.load("C3", rule("Third"));
        another.click("btnSave");
        QCOMPARE(mailbox.takeHeads(), QStringList("996 " + another.id));
        if (what == Cleared || what == LoadedAnew) {
            window.load("C4", rule("Fourth"));
            QCOMPARE(window.channel(), QString("C4"));
        }
        if (window.parent)
            QVERIFY(!window.parent->grab().isNull());
    }

    void losesTheClientsWidgets()
    {
        const Window window(widget());
        window.load("C1", rule("Gate"));
        auto* const edit = new QLineEdit(window.parent);
        edit->show();
        edit->setFocus();
        m_whileFocusing = [edit] { delete edit; };
        window.find<QWidget>("high")->setFocus();
        QVERIFY(window.content->isAncestorOf(QApplication::focusWidget()));
    }

    void keepsWindowsApart()
    {
        Mailbox mailbox;
        BoxAnswerer boxes(QMessageBox::Yes);
        const Window windows[] = {Window(widget()), Window(widget())};
        windows[1].parent->resize(1400, 900);
        windows[1].content->resize(1400, 900);
        const auto answers = [&](const char* channel) {
            QString texts;
            for (const Window& window : windows)
                window.query(channel);
            for (const Mailbox::Message& message : mailbox.take()) {
                const Value reply = Mailbox::json(message.p2.toString());
                const bool isUnfinished = reply["unFinishedDraw"].asBool();
                texts += message.p1.toString().right(1) + (isUnfinished ? "+ " : "- ");
            }
            return texts;
        };
        for (const Window& window : windows)
            window.load("C" + window.id.right(1).toLatin1(), rule("Gate " + window.id.toLatin1()));
        // Each draws its own figure, by turns.
        const QPoint points[] = {{100, 100}, {300, 120}, {280, 260}};
        for (const Window& window : windows)
            window.click("redraw");
        for (const QPoint& point : points) {
            windows[0].press(point);
            QCOMPARE(answers("C1"), QString("1+ 2- "));
            windows[1].press(point + QPoint(50, 30));
            QCOMPARE(answers("C2"), QString("1- 2+ "));
        }
        windows[0].press({}, Qt::RightButton);
        windows[0].click("btnSave");
        QCOMPARE(mailbox.take().size(), 1);
        QCOMPARE(boxes.takeBoxes().size(), 1);
        windows[1].click("btnSave");
        QCOMPARE(boxes.takeBoxes().value(0).left(30), QString("Error: Please finish drawing G"));
        windows[0].clear();
        windows[1].press({}, Qt::RightButton);
        windows[1].click("btnSave");
        const QList<Mailbox::Message> messages = mailbox.take();
        QCOMPARE(messages.size(), 1);
        const Value saved = Mailbox::json(messages[0].p2.toString());
        QCOMPARE(messages[0].p1.toString() + saved["channalId"].asString(), windows[1].id + "C2");
        const Value& area = saved["channelAbilityPO"]["Rules"][0]["Area"];
        QCOMPARE(area.size(), 3);
        const QSize size = windows[1].picture().size();
        for (int i = 0; i < area.size(); ++i) {
            const QPoint drawn = points[i] + QPoint(50, 30);
            QCOMPARE(area[i][0].asInt(), drawn.x() * 8192 / size.width());
            QCOMPARE(area[i][1].asInt(), drawn.y() * 8192 / size.height());
        }
    }

    /// Handles that the factory deletes, windows that their parents delete, and the other way
    /// round.
    void endsInAnyOrder()
    {
        IAbstractWidget* const handle = widget();
        {
            const Window first(handle);
            first.load("C1", rule("Gate"));
        }
        const QString to = QString(R"({"pluginWidgetID": "IntelligentRulesUI1"})");
        QVERIFY(
            handle->OnPluginMessage(Window::OpenRules, to, block(R"("channelId": "C1")", "{}")));
        const Window again(handle);
        QCOMPARE(again.channel(), QString());
        again.load("C1", rule("Gate"));
        const QPointer<QWidget> ownerless = widget()->GetWidget(nullptr);
        // The client's as well, though out of their parents again.
        QWidget client;
        QPointer<QWidget> takenOut[] = {widget()->GetWidget(&client), widget()->GetWidget(nullptr)};
        takenOut[1]->setParent(&client);
        for (QWidget* window : takenOut)
            window->setParent(nullptr);
        for (int i = 0; i < 2; ++i) {
            m_plugin->UnInit();
            QVERIFY_BOTH(!ownerless, !m_plugin->GetUI());
            QVERIFY(again.content);
        }
        for (QWidget* window : takenOut) {
            QVERIFY(window);
            delete window;
        }
        again.click("btnSave");
        again.press({5, 5});
        again.parent->resize(800, 600);
        QVERIFY_BOTH(again.channel().isEmpty(), !again.parent->grab().isNull());
    }

    void doesNotGrow()
    {
        QList<QString> blocks;
        for (const QString& name : ExampleFiles::names()) {
            const auto document = [&name](const char* file) {
                return ExampleFiles::contentOf(ExampleFiles::folder(name) + file);
            };
            blocks.append(
                block(R"("channelId": "C1")", document("config.json"), document("template.json")));
        }
        BoxAnswerer boxes(QMessageBox::Yes);
        const Window window(widget());
        window.parent->hide();
        const auto work = [&](int loads) {
            Mailbox mailbox;
            for (int i = 0; i < loads; ++i) {
                window.send(blocks[i % blocks.size()]);
                window.find("btnSave")->click();
                if (i % 10 == 0)
                    window.parent->grab();
                if (i % 2 == 0)
                    window.clear();
                QCoreApplication::processEvents();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                boxes.takeBoxes();
                QCOMPARE(mailbox.take().size(), 1);
            }
            window.clear();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        };
        constexpr int kRounds = 4;
        // Caches fill once; what stays behind each time grows in every round.
        int grown = std::numeric_limits<int>::max();
        for (int round = 0; round < kRounds; ++round) {
            const int before = used();
            work(kLoads / kRounds);
            grown = qMin(grown, (used() - before) / (kLoads / kRounds));
        }
        constexpr int kSmallest = 16; ///< a block of the allocator, with what it keeps of it
        QVERIFY2(!kIsMemoryCounted || grown < kSmallest, qPrintable(QString::number(grown)));
    }
};

QTEST_MAIN(TstLifetimes)
#include "tst_lifetimes.moc"
