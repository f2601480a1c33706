#include "host/api/cuipluginmessage.h"
#include "host/api/kqmessagebox.h"
#include "host/api/skin.h"
#include "host/video/maskedaddress.h"
#include "host/video/streamaddress.h"
#include "tests/support/fixtures.h"
#include "tests/support/rulestest.h"

#include <functional>
#include <memory>

using KQGUI::KQMessageBox;
using UICommonMdl::CUIPluginMessage;
using UICommonMdl::PluginMsg_Param;

namespace
{

/// Lets @p act answer the next message box.
void atNextBox(const std::function<void(QMessageBox*)>& act)
{
    QTimer::singleShot(0, qApp, [act]() {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        act(box);
    });
}

QMessageBox::StandardButton ask(QWidget* parent)
{
    return KQMessageBox::ShowInformation(parent, KQMessageBox::kQuestion, QString("Prompt"),
                                         QString("Sure?"), QMessageBox::Yes | QMessageBox::No);
}

} // namespace

class TstServices : public RulesTest
{
    Q_OBJECT

private slots:
    void busDeliversLaterInOrderOnTheGuiThread()
    {
        auto& bus = KQGUI::KQSingleton<CUIPluginMessage>::Instance();
        QList<int> ids;
        bool isOnGuiThread = true;
        const auto receive = [&](const PluginMsg_Param& message) {
            isOnGuiThread = isOnGuiThread && QThread::currentThread() == qApp->thread();
            ids.append(message.id);
            if (message.id == 0)
                bus.PostEvent({1000, {}, {}});
        };
        const auto connection = connect(&bus, &CUIPluginMessage::sgnPluginMessage, receive);
        QList<int> expected;
        const auto post = [&](int from, int to) {
            for (int id = from; id < to; ++id) {
                bus.PostEvent({id, QString("widget"), {}});
                expected.append(id);
            }
        };
        post(0, 50);
        const std::unique_ptr<QThread> thread(QThread::create([&]() { post(50, 100); }));
        thread->start();
        QVERIFY(thread->wait());
        QVERIFY2(ids.isEmpty(), "a message was delivered while it was posted");
        expected.append(1000);
        QTRY_COMPARE_WITH_TIMEOUT(ids, expected, kTryFor);
        QVERIFY(isOnGuiThread);
        disconnect(connection);
    }

    void skinIsFound()
    {
        const auto path = [] {
            return UICommonMdl::GetSkinPath(QString("SkinTest"), QString("Window.qss"));
        };
        QCOMPARE(path(), QString(":/skin/SkinTest/Window.qss"));
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath(QString("skin/SkinTest")));
        QFile sheet(folder.filePath(QString("skin/SkinTest/Window.qss")));
        QVERIFY(sheet.open(QIODevice::WriteOnly));
        sheet.write("QLabel { color: red; /* \xC3\xA9 */ }");
        sheet.close();
        QCoreApplication::addLibraryPath(folder.path());
        const QString beside = path();
        QCoreApplication::removeLibraryPath(folder.path());
        QVERIFY(beside.endsWith(QString("/skin/SkinTest/Window.qss")));
        QVERIFY(!beside.startsWith(':'));
        qputenv("KQ_SKIN_DIR", folder.filePath(QString("skin")).toUtf8());
        QCOMPARE(path(), sheet.fileName());
        qunsetenv("KQ_SKIN_DIR");

        QString text;
        QVERIFY(!UICommonMdl::loadStyleSheet(folder.path(), text));
        QVERIFY(UICommonMdl::loadStyleSheet(sheet.fileName(), text));
        QCOMPARE(text, QString::fromUtf8("QLabel { color: red; /* \xC3\xA9 */ }"));
    }

    void boxShowsPlainText()
    {
        const auto text = QString("<b>Name</b> & <img src=\"x\">");
        int boxes = 0;
        atNextBox([&](QMessageBox* box) {
            ++boxes;
            QCOMPARE(box->windowTitle() + box->text(), QString("Error") + text);
            QCOMPARE(box->textFormat(), Qt::PlainText);
            QCOMPARE(box->icon(), QMessageBox::Critical);
            box->accept();
        });
        KQMessageBox::ShowError(nullptr, QString("Error"), text);
        atNextBox([&](QMessageBox* box) {
            ++boxes;
            QVERIFY_BOTH(box->text().size() < 5000, box->text().count('\n') < 30);
            QVERIFY(!box->text().contains(QChar(0x2028)));
            QCOMPARE(box->icon(), QMessageBox::Information);
            box->accept();
        });
        KQMessageBox::ShowNotice(nullptr, QString("Notice"),
                                 QString("x\n\u2028").repeated(9000) + QString(9000, 'x'));
        QCOMPARE(boxes, 2);
    }

    void escapeAnswersNo()
    {
        atNextBox([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); });
        QCOMPARE(ask(nullptr), QMessageBox::No);
    }

    void addressesHideTheirLogin_data() { Fixtures::addRows("addresses.json"); }

    /// As an address is shown, kept and sent; by default as it is.
    void addressesHideTheirLogin()
    {
        QFETCH(const kql::Json::Value, fixture);
        const QString given = QString(QTest::currentDataTag()).section(' ', 1);
        const auto expected = [&](const char* use) {
            return fixture.isMember(use) ? fixture[use].asString() : given;
        };
        QCOMPARE(UICommonMdl::maskedAddress(given), expected("shown"));
        QCOMPARE(UICommonMdl::addressWithoutLogin(given), expected("kept"));
        QCOMPARE(UICommonMdl::StreamAddress::parse(given).encoded(), expected("sent"));
    }

    void loginsStayWithTheirServer()
    {
        const auto passesOn = [](const char* from, const char* to) {
            using UICommonMdl::StreamAddress;
            return StreamAddress::parse(from).mayPassOnTo(StreamAddress::parse(to));
        };
        for (const char* same : {"rtsp://CAM/other", "rtsp://x@cam:554", "rtsps://cam:554/?a"})
            QVERIFY2(passesOn("rtsp://u:X@cam/live", same), same);
        for (const char* other : {"rtsp://cam:555/live", "rtsp://cam2/live",
                                  "rtsp://evil y/@cam/live", "http://cam:554/", "rtsp:evil://cam/",
                                  "rtsp:/cam/", "", "rtsp://cam:554:1/", "rtsps://cam/"})
            QVERIFY2(!passesOn("rtsp://u:X@cam/live", other), other);
        QVERIFY(!passesOn("rtsps://cam:1", "rtsp://cam:1"));
    }
};

QTEST_MAIN(TstServices)
#include "tst_services.moc"
