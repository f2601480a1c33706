#include "host/api/rtspvideoparam.h"
#include "host/video/channelsources.h"
#include "host/video/picturesize.h"
#include "host/video/picturewatch.h"
#include "host/video/playoutclock.h"
#include "host/video/qrtspvideownd.h"
#include "host/video/streamsource.h"
#include "tests/stream/hostilecamera.h"
#include "tests/support/examplefiles.h"
#include "tests/support/fixtures.h"
#include "tests/support/rulestest.h"

#include <array>
#include <csignal>
#include <map>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

using namespace UICommonMdl;
using namespace std::chrono_literals;
using kql::Json::Value;

namespace Files = ExampleFiles;

namespace
{

StreamRequest request(const QString& address, bool isFile = false, StreamOptions options = {})
{
    StreamRequest request;
    request.address = address;
    request.isFile = isFile;
    request.options = options;
    return request;
}

/// Of one that gives no picture: it is not waited for long.
StreamRequest vainRequest(const QString& address)
{
    StreamRequest asked = request(address);
    asked.firstPictureLimit = 2s;
    return asked;
}

/// What the process writes to the standard error stream meanwhile.
class ErrorOutput
{
public:
    ErrorOutput() : m_saved(::dup(STDERR_FILENO))
    {
        m_file.open();
        ::dup2(m_file.handle(), STDERR_FILENO);
    }
    ~ErrorOutput()
    {
        ::dup2(m_saved, STDERR_FILENO);
        ::close(m_saved);
    }
    QByteArray text() const { return Files::contentOf(m_file.fileName()); }

private:
    QTemporaryFile m_file;
    int m_saved;
};

bool isNear(const QColor& color, const QColor& expected)
{
    constexpr int kTolerance = 40;
    return qAbs(color.red() - expected.red()) < kTolerance &&
           qAbs(color.green() - expected.green()) < kTolerance &&
           qAbs(color.blue() - expected.blue()) < kTolerance;
}

/// The colours in the middle of equally wide bars, at a quarter of the height.
QString wrongBars(const QImage& image, const QList<QColor>& bars)
{
    for (int i = 0; i < bars.size(); ++i) {
        const int x = (2 * i + 1) * image.width() / (2 * bars.size());
        const QColor color = image.pixelColor(x, image.height() / 4);
        if (!isNear(color, bars[i]))
            return QString("bar %1 is %2").arg(i).arg(color.name());
    }
    return {};
}

const QList<QColor> kColorBars{Qt::white,   Qt::yellow, Qt::cyan, Qt::green,
                               Qt::magenta, Qt::red,    Qt::blue};
const QList<QColor> kFileBars{Qt::red, Qt::blue};

QString video(const QString& name)
{
    return Fixtures::path("videos/") + name;
}

/// What the server of a fixture is asked for; "FIXTURES" is their folder.
QStringList serverOf(const Value& fixture)
{
    return Fixtures::textsOf(fixture["server"]).replaceInStrings("FIXTURES", Fixtures::path({}));
}

ChannelSources& channelSources()
{
    return KQGUI::KQSingleton<ChannelSources>::Instance();
}

/// As some do, it knows no protocol but its own.
QByteArray asWebServer(const QByteArray& request)
{
    return request.contains(" HTTP/") ? "HTTP/1.0 200 OK\r\n\r\n"
                                      : "<html>400 Bad Request</html>\n";
}

const QByteArray kLogin = "WWW-Authenticate: Basic realm=\"x\"";
const QByteArray kFound = "302 Found";
const QByteArray kLocation = "Location: ";
// Behind a SETUP that asks for TCP.
const QByteArray kSession = "Session: 1\r\nTransport: RTP/AVP/TCP;unicast;interleaved=0-1\r\n\r\n";

struct HostileAnswer {
    QByteArray text; ///< behind the first lines of the answer to DESCRIBE
    const char* reason;
};

/// Some of them name @p fileAddress or @p http as what to ask for.
std::map<QByteArray, HostileAnswer> hostileAnswers(const QByteArray& fileAddress,
                                                   const QByteArray& http)
{
    const QByteArray begin = "v=0\r\no=- 0 0 IN IP4 127.0.0.1\r\ns=x\r\nt=0 0\r\n";
    const QByteArray part = "m=video 0 RTP/AVP 96\r\na=rtpmap:96 H264/90000\r\n";
    const QByteArray whole = begin + part;
    const QByteArray control = whole + "a=control:";
    const QByteArray longest(1 << 20, 'x');
    const QByteArray zeros(1 << 20, '\0');
    const auto port = [&](const char* text) { return QByteArray(whole).replace(" 0 ", text); };
    const auto body = [](const QByteArray& text, const QByteArray& length = {}) {
        return "Content-Length: " + (length.isEmpty() ? QByteArray::number(text.size()) : length) +
               "\r\n\r\n" + text;
    };
    return {{"file", {body(control + fileAddress + "\r\n"), "no answer"}},
            {"base", {"Content-Base: " + fileAddress + "\r\n" + body(whole), "no answer"}},
            {"http", {body(control + http + "\r\n"), "no answer"}},
            {"parts", {body(begin + part.repeated(5000)), "no answer"}},
            {"lines", {body(whole + "a=fmtp:96 " + longest + "\r\na=control:" + longest), "."}},
            {"header", {"X: " + longest + "\r\n" + body(whole), "no answer"}},
            {"negativePort", {body(port(" -1 ")), "no answer"}},
            {"hugePort", {body(port(" 99999999999999999999 ")), "no answer"}},
            {"picture", {body(whole + "a=framesize:96 99999-99999\r\n"), "out of range"}},
            {"zeros", {body(begin + zeros), "no video in it"}},
            {"zerosInLine", {body(control + zeros + "\r\n"), "."}},
            {"nothing", {"", "no answer"}},
            {"negativeLength", {body(whole, "-5"), "no video that can be read"}},
            {"hugeLength", {body(whole, "2000000000"), "."}},
            {"endlessLength", {body(whole, "99999999999999999999"), "."}}};
}

} // namespace

class TstStream : public RulesTest
{
    Q_OBJECT

private slots:
    void keepsTime()
    {
        const PlayoutClock::Time start = std::chrono::steady_clock::now();
        PlayoutClock live(200ms, 0ms, 1s);
        QVERIFY(live.dueAt(5s, start) == start + 200ms);
        QVERIFY(live.dueAt(5040ms, start + 230ms) == start + 240ms);
        QVERIFY(live.dueAt(5080ms, start + 300ms) == start + 500ms); // too late: filled up again
        QVERIFY(live.dueAt(9s, start + 500ms) == start + 700ms);     // a jump
        QVERIFY(live.dueAt(PlayoutClock::Duration::min(), start + 1s) == start + 1200ms);
        QVERIFY(live.dueAt(PlayoutClock::Duration::max(), start + 2s) == start + 2200ms);
        PlayoutClock atOnce(0ms, 0ms, 0ms);
        for (const auto media : {0ms, 40ms, 20ms, 4000ms})
            QVERIFY(atOnce.dueAt(media, start + 7ms) == start + 7ms);
        PlayoutClock looped(0ms, 1s, 60s);
        QVERIFY(looped.dueAt(0ms, start) == start);
        QVERIFY(looped.dueAt(40ms, start + 90ms) == start + 40ms);
        looped.restartAt(start + 80ms);
        QVERIFY(looped.dueAt(0ms, start + 90ms) == start + 80ms);
        QVERIFY(looped.dueAt(40ms, start + 90ms) == start + 120ms);
    }

    void waitsAsLongAsPicturesTake()
    {
        const PictureWatch::Clock::time_point start{};
        PictureWatch watch(30s, 10s, start);
        const auto deadlineAfter = [&](PictureWatch::Clock::duration time) {
            watch.notePicture(start + time);
            return watch.deadline() - start;
        };
        QVERIFY(watch.deadline() == start + 30s);
        QVERIFY(deadlineAfter(20s) == 50s); // no gap is known yet
        QVERIFY(deadlineAfter(23s) == 33s);
        QVERIFY(deadlineAfter(35s) == 71s);
        for (int i = 0; i < 7; ++i)
            QVERIFY(deadlineAfter(36s) == 72s);
        QVERIFY(deadlineAfter(36s) == 46s); // the long gap is not one of the last
    }

    void playsStreams_data() { Fixtures::addRows("streams/played.json"); }

    void playsStreams()
    {
        QFETCH(const Value, fixture);
        Server camera(serverOf(fixture));
        QString address = camera.address();
        if (fixture.isMember("scheme"))
            address.replace("rtsp:", fixture["scheme"].asString() + ':');
        StreamSource source(
            request(address, false, {fixture["udp"].asBool(), fixture["delay"].asInt()}));
        QSignalSpy ready(&source, &PictureSource::sgnPictureReady);
        source.setBounds({400, 180});
        source.start();
        QCOMPARE(source.status().state, PictureState::Connecting);
        QTRY_VERIFY_WITH_TIMEOUT(ready.count() > 5, kTryFor);
        QCOMPARE(source.status().state, PictureState::Playing);
        QCOMPARE(source.pictureSize(), QSize(320, 240));
        QCOMPARE(source.picture().size(), QSize(240, 180));
        QCOMPARE(wrongBars(source.picture(), kColorBars), QString());
        source.setTargetSize({141, 106});
        QTRY_COMPARE_WITH_TIMEOUT(source.picture().size(), QSize(141, 106), kTryFor);
        QCOMPARE(wrongBars(source.picture(), kColorBars), QString());
        QCOMPARE(source.fullPicture().size(), QSize(320, 240));
        const PictureStatistics statistics = source.statistics();
        QCOMPARE(statistics.codec, fixture["codec"].asString());
        QCOMPARE(statistics.size, QSize(320, 240));
        QVERIFY(statistics.picturesPerSecond > 0);
    }

    void comesBack()
    {
        Server camera;
        QList<QSize> sizes;
        QRtspVideoWnd surface;
        surface.resize(400, 300);
        surface.registerVideoSizeCallback(
            [](int width, int height, void* user) {
                static_cast<QList<QSize>*>(user)->append({width, height});
            },
            &sizes);
        PreviewLogical::RtspVideoParam param;
        param.rtspUrl = camera.address();
        param.sessionId = 3;
        param.playType = 1;
        QVERIFY(surface.openByRtsp(param));
        QVERIFY(!surface.statusText().isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(surface.statusText(), QString(), kTryFor);
        camera.kill();
        QTRY_VERIFY_WITH_TIMEOUT(surface.statusText().contains("No signal"), kTryFor);
        QVERIFY(surface.statusText().contains("Last picture: "));
        QCOMPARE(surface.paneRect(0), QRect(0, 0, 400, 300));
        QCOMPARE(wrongBars(surface.grab().toImage(), kColorBars), QString());
        camera.start();
        QTRY_COMPARE_WITH_TIMEOUT(surface.statusText(), QString(), kTryFor);
        QCOMPARE(sizes, QList<QSize>({QSize(320, 240)}));
        surface.closeRtsp(3, 1);
        QCOMPARE(surface.paneRect(0), QRect());
    }

    void tellsWhyNothingComes_data() { Fixtures::addRows("streams/refused.json"); }

    void tellsWhyNothingComes()
    {
        QFETCH(const Value, fixture);
        const auto text = [&](const char* name) { return fixture[name].asString(); };
        const HostileCamera web(&asWebServer);
        std::optional<Server> camera;
        std::unique_ptr<PictureSource> source;
        if (fixture.isMember("address")) {
            source = channelSources().makeSource(text("address"));
        } else if (fixture.isMember("file")) {
            source = channelSources().makeSource(text("scheme") + Fixtures::path(text("file")));
        } else {
            const QString path = fixture.isMember("path") ? text("path") : "bars";
            source = std::make_unique<StreamSource>(
                vainRequest(fixture["web"].asBool()
                                ? web.address(text("user"))
                                : camera.emplace(serverOf(fixture)).address(text("user"), path)));
        }
        source->start();
        QTRY_COMPARE_WITH_TIMEOUT(source->status().state, PictureState::NoSignal, kTryFor);
        const PictureStatus status = source->status();
        QVERIFY2(status.reason.contains(text("reason")), qPrintable(status.reason));
        QVERIFY_BOTH(!status.reason.isEmpty(), !status.reason.contains("s3cr3t"));
        QVERIFY(!status.lastPicture.isValid());
        QVERIFY_BOTH(source->picture().isNull(), source->pictureSize().isEmpty());
    }

    /// However large they are, and although a longer time lies between them than is usual.
    void showsAllPicturesOfASlowCamera()
    {
        int pictures[2] = {};
        std::vector<std::unique_ptr<Server>> cameras;
        std::vector<std::unique_ptr<StreamSource>> sources;
        for (int& count : pictures) {
            const QString height = cameras.empty() ? "120" : "1152";
            cameras.push_back(std::make_unique<Server>(QStringList{
                "--rate", "4/1", "--pictures", "7", "--width", "2048", "--height", height}));
            StreamRequest asked = request(cameras.back()->address());
            asked.silenceLimit = 100ms;
            sources.push_back(std::make_unique<StreamSource>(asked));
            connect(sources.back().get(), &PictureSource::sgnPictureReady, [&]() { ++count; });
            sources.back()->start();
        }
        for (const auto& source : sources) {
            QTRY_COMPARE_WITH_TIMEOUT(source->status().state, PictureState::NoSignal, kTryFor);
            QVERIFY(source->status().reason.contains("nothing comes any more"));
        }
        QVERIFY2(pictures[0] >= 5, qPrintable(QString::number(pictures[0])));
        QCOMPARE(pictures[1], pictures[0]);
    }

    void givesUpASilentCamera()
    {
        Server camera;
        StreamRequest asked = request(camera.address());
        asked.silenceLimit = 2s;
        StreamSource source(asked);
        source.start();
        QTRY_COMPARE_WITH_TIMEOUT(source.status().state, PictureState::Playing, kTryFor);
        QTest::qWait(1000); // a start may take long, and is one of the last gaps
        camera.send(SIGSTOP);
        const QDateTime stopped = QDateTime::currentDateTime();
        QTRY_COMPARE_WITH_TIMEOUT(source.status().state, PictureState::NoSignal, kTryFor);
        QVERIFY(stopped.msecsTo(QDateTime::currentDateTime()) < 3500);
        QVERIFY(stopped.msecsTo(source.status().lastPicture) < 500);
        QVERIFY(source.status().reason.contains("nothing comes any more"));
        QVERIFY(!source.picture().isNull());
        camera.send(SIGCONT);
        QTRY_COMPARE_WITH_TIMEOUT(source.status().state, PictureState::Playing, kTryFor);
    }

    void triesAgainAndKeepsSecrets()
    {
        const ErrorOutput output;
        const QStringList guarded{"--user", "viewer", "--password", "s3cr3t/p?a#s %s@1"};
        Server camera(guarded);
        StreamSource source(request(camera.address(QString("viewer:s3cr3t/p?a#s %s@1@"))));
        source.start();
        QTRY_COMPARE_WITH_TIMEOUT(source.status().state, PictureState::Playing, kTryFor);
        camera.kill();
        QTRY_COMPARE_WITH_TIMEOUT(source.status().state, PictureState::NoSignal, kTryFor);
        QElapsedTimer timer;
        timer.start();
        const QByteArray refusal = "***@127.0.0.1:";
        QTRY_COMPARE_WITH_TIMEOUT(output.text().count(refusal), 3, kTryFor);
        QVERIFY2(timer.elapsed() > 2800, "tries after 1 and 2 seconds");
        QVERIFY(source.status().reason.contains("refused"));
        QVERIFY(source.status().reason.contains("Next try at "));
        timer.start();
        source.start();
        QTRY_COMPARE_WITH_TIMEOUT(output.text().count(refusal), 4, kTryFor);
        QVERIFY2(timer.elapsed() < 3000, "a wait of 4 seconds");
        camera.start(guarded);
        QTRY_COMPARE_WITH_TIMEOUT(source.status().state, PictureState::Playing, kTryFor);
        const QByteArray said = output.text() + source.status().reason.toUtf8();
        for (const char* secret : {"s3cr3t", "viewer", "dmlld2VyOnMzY3IzdA"})
            QVERIFY2(!said.contains(secret), said.constData());
    }

    void asksBeforeItTriesARefusedLoginAgain()
    {
        for (const char* refusal : {"401 Unauthorized", "403 Forbidden"}) {
            const HostileCamera camera(refusal, kLogin);
            QRtspVideoWnd surface;
            surface.resize(400, 300);
            auto* const again = surface.findChild<QPushButton*>("tryAgain");
            PreviewLogical::RtspVideoParam param;
            param.rtspUrl = camera.address("viewer:s3cr3t@");
            QVERIFY(surface.openByRtsp(param));
            QVERIFY(again->isHidden());
            QTRY_VERIFY_WITH_TIMEOUT(surface.statusText().contains("only when you ask"), kTryFor);
            QTRY_VERIFY_WITH_TIMEOUT(!again->isHidden(), kTryFor);
            QVERIFY(surface.rect().contains(again->geometry()));
            const int tries = camera.heard().count("OPTIONS ");
            QVERIFY(tries > 0);
            QTest::qWait(1500); // the first wait is one second
            QCOMPARE(camera.heard().count("OPTIONS "), tries);
            again->click();
            QTRY_VERIFY_WITH_TIMEOUT(again->isHidden(), kTryFor);
            QTRY_VERIFY_WITH_TIMEOUT(camera.heard().count("OPTIONS ") > tries, kTryFor);
        }
    }

    void takesNoLoginElsewhere()
    {
        const HostileCamera greedy("401 Unauthorized", kLogin);
        const HostileCamera camera(kFound, kLocation + greedy.address().toUtf8());
        StreamSource source(request(camera.address("viewer:s3cr3t@")));
        source.start();
        QTRY_COMPARE_WITH_TIMEOUT(source.status().state, PictureState::NoSignal, kTryFor);
        QCOMPARE(greedy.heard(), QByteArray());
        QVERIFY2(source.status().reason.contains("to another server"),
                 qPrintable(source.status().reason));
    }

    void closesAtOnce()
    {
        Server camera;
        const HostileCamera silent;
        const StreamRequest requests[] = {request(camera.address()), request(silent.address()),
                                          request(video("fast.avi"), true)};
        for (const StreamRequest& asked : requests) {
            qint64 longest = 0;
            int pictures = 0;
            for (int i = 0; i < 15; ++i) {
                auto source = std::make_unique<StreamSource>(asked);
                connect(source.get(), &PictureSource::sgnPictureReady, [&]() { ++pictures; });
                source->start();
                if (i % 3 == 1)
                    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
                if (i % 3 == 2 && asked.address != silent.address())
                    QTRY_VERIFY_WITH_TIMEOUT(!source->picture().isNull(), kTryFor);
                QElapsedTimer timer;
                timer.start();
                if (i % 2 == 0)
                    source->stop();
                const int before = pictures;
                QCoreApplication::processEvents();
                QVERIFY(i % 2 != 0 || pictures == before);
                source.reset();
                longest = qMax(longest, timer.elapsed());
            }
            QVERIFY2(longest < 1000, qPrintable(QString::number(longest)));
        }
    }

    void playsFiles_data() { Fixtures::addRows("streams/files.json"); }

    void playsFiles()
    {
        QFETCH(const Value, fixture);
        const QString name = QString(QTest::currentDataTag()).section(' ', 1);
        const auto source = channelSources().makeSource(video(name));
        source->setTargetSize({33, 25});
        QSignalSpy ready(source.get(), &PictureSource::sgnPictureReady);
        source->start();
        QTRY_VERIFY_WITH_TIMEOUT(ready.count() > 0, kTryFor);
        QElapsedTimer timer;
        timer.start();
        const auto count = [&]() { return ready.count() + source->statistics().dropped; };
        const qint64 first = count();
        QTRY_VERIFY_WITH_TIMEOUT(count() >= first + 12, kTryFor);
        // Eleven whole distances at least, whatever the first picture waited for.
        const int shortest = 11 * 1000 / fixture["picturesPerSecond"].asInt();
        QVERIFY2(timer.elapsed() > shortest - 150, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(source->picture().size(), QSize(33, 25));
        QCOMPARE(wrongBars(source->picture(), kFileBars), QString());
        QCOMPARE(source->statistics().codec, fixture["codec"].asString());
    }

    void showsPicturesInTheirShape_data() { Fixtures::addRows("streams/shapes.json"); }

    void showsPicturesInTheirShape()
    {
        QFETCH(const Value, fixture);
        const QSize shown = Fixtures::valueOf(fixture["shown"]).toSize();
        QList<QColor> bars;
        for (const QString& name : Fixtures::textsOf(fixture["bars"]))
            bars.append(QColor(name));
        Server camera(serverOf(fixture));
        const bool isFile = fixture.isMember("file");
        channelSources().setAddress("shape",
                                    isFile ? video(fixture["file"].asString()) : camera.address());
        QRtspVideoWnd surface;
        surface.resize(300, 200);
        QSize reported;
        surface.registerVideoSizeCallback(
            [](int width, int height, void* user) {
                *static_cast<QSize*>(user) = {width, height};
            },
            &reported);
        QVERIFY(surface.openLivePicture("shape"));
        QTRY_COMPARE_WITH_TIMEOUT(surface.paneRect(0), letterboxed(shown, surface.rect()), kTryFor);
        QCOMPARE(QVariant(reported), Fixtures::valueOf(fixture["decoded"]));
        for (const bool frozen : {false, true}) {
            surface.setFrozen(frozen);
            QCOMPARE(surface.paneRect(0), letterboxed(shown, surface.rect()));
            QCOMPARE(surface.snapshot().size(), shown);
            for (const QImage& image :
                 {surface.snapshot(), surface.grab(surface.paneRect(0)).toImage()})
                QCOMPARE(wrongBars(image, isFile ? bars : kColorBars), QString());
        }
        surface.resetToolBar(0);
    }

    /// It may never have a writer, and its name tells nothing.
    void waitsForANamedPipe()
    {
        const QString path = m_folder.filePath("pipe");
        QVERIFY(::mkfifo(path.toUtf8().constData(), S_IRUSR | S_IWUSR) == 0);
        channelSources().makeSource(path)->start();
        const auto source = channelSources().makeSource(path);
        source->start();
        QTest::qWait(100);
        QCOMPARE(source->status().state, PictureState::Connecting);
        QFile pipe(path);
        QVERIFY(pipe.open(QIODevice::WriteOnly));
        pipe.write(Fixtures::contentOf("videos/fast.avi"));
        pipe.close();
        QTRY_VERIFY_WITH_TIMEOUT(!source->picture().isNull(), kTryFor);
        QCOMPARE(wrongBars(source->picture(), kFileBars), QString());
        QTRY_COMPARE_WITH_TIMEOUT(source->status().state, PictureState::NoSignal, kTryFor);
        QVERIFY2(source->status().reason.contains("ended"), qPrintable(source->status().reason));
    }

    void dropsWhatNobodyTakes()
    {
        StreamSource source(request(video("fast.avi"), true));
        QSignalSpy ready(&source, &PictureSource::sgnPictureReady);
        source.start();
        QTRY_VERIFY_WITH_TIMEOUT(ready.count() > 0, kTryFor);
        const int taken = ready.count();
        const qint64 before = source.statistics().dropped;
        QElapsedTimer timer;
        timer.start();
        while (source.statistics().dropped < before + 5 && timer.elapsed() < kTryFor)
            QThread::msleep(5); // no events: the GUI has no time
        QCOMPARE(ready.count(), taken);
        QCoreApplication::processEvents();
        QVERIFY(ready.count() <= taken + 2);
        QVERIFY(source.statistics().dropped >= before + 5);
    }

    /// A camera may send its client to another address, but never to a file or another protocol.
    void isSentToStreamsOnly()
    {
        const QString video = ::video("fast.avi");
        Server bars;
        const auto comes = [](const QString& address) {
            StreamSource source(request(address));
            source.start();
            return QTest::qWaitFor(
                       [&source] {
                           return source.status().state == PictureState::NoSignal ||
                                  !source.picture().isNull();
                       },
                       kTryFor) &&
                   !source.picture().isNull();
        };
        for (const QString& location :
             {"file://" + video, "file:" + video, video, "rtsp:" + video, "concat:" + video,
              QString(bars.address()).replace("rtsp:", "http:"), QString()}) {
            const HostileCamera camera(kFound, kLocation + location.toUtf8());
            QVERIFY2(!comes(camera.address()), qPrintable(location));
            QTRY_VERIFY_WITH_TIMEOUT(camera.heard().contains("rtsp://127.0.0.1"), kTryFor);
        }
        const HostileCamera camera(kFound, kLocation + bars.address().toUtf8());
        QVERIFY(comes(camera.address()));
        // An option behind the address that asks for a tunnel gets none.
        const HostileCamera untunnelled(kFound, kLocation + bars.address().toUtf8());
        comes(untunnelled.address() + QString("?http"));
        QTRY_VERIFY_WITH_TIMEOUT(untunnelled.heard().contains(" rtsp://"), kTryFor);
        QVERIFY2(!untunnelled.heard().contains("HTTP"), untunnelled.heard().constData());
    }

    /// What a camera describes leads to no file, to no other protocol, and to nothing without end.
    void survivesHostileDescriptions()
    {
        const QString file = m_folder.filePath("described.avi");
        QVERIFY(QFile::copy(::video("fast.avi"), file));
        const QByteArray video = file.toUtf8();
        const int opened = ::inotify_init1(IN_NONBLOCK);
        QVERIFY(::inotify_add_watch(opened, video.constData(), IN_OPEN) >= 0);
        std::map<QByteArray, HostileAnswer> answers;
        const HostileCamera camera([&answers](const QByteArray& asked) {
            if (!asked.startsWith("DESCRIBE "))
                return HostileCamera::rtsp(asked, "200 OK", kSession);
            const QByteArray address = asked.split(' ')[1];
            return HostileCamera::rtsp(asked, "200 OK",
                                       answers[address.mid(address.lastIndexOf('/') + 1)].text);
        });
        const QByteArray http = camera.address().replace("rtsp:", "http:").toUtf8();
        answers = hostileAnswers("file://" + video, http);
        std::map<QByteArray, std::unique_ptr<StreamSource>> sources;
        for (const auto& [path, answer] : answers) {
            sources[path] = std::make_unique<StreamSource>(vainRequest(camera.address({}, path)));
            sources[path]->start();
        }
        for (const auto& [path, source] : sources) {
            QTRY_VERIFY2_WITH_TIMEOUT(source->status().reason.contains(answers[path].reason),
                                      path.constData(), kTryFor);
            QCOMPARE(source->status().state, PictureState::NoSignal);
            QVERIFY2(source->picture().isNull(), path.constData());
        }
        for (const QByteArray& elsewhere : {"SETUP file://" + video, "SETUP " + http})
            QTRY_VERIFY_WITH_TIMEOUT(camera.heard().contains(elsewhere), kTryFor);
        const QByteArray asked = camera.heard();
        QVERIFY_BOTH(!asked.contains("GET "), !asked.contains("HTTP/"));
        const QByteArray parts = camera.address({}, "parts").toUtf8();
        QVERIFY(asked.count("SETUP " + parts) <= 16 * asked.count("DESCRIBE " + parts));
        std::array<char, 1024> event{};
        QVERIFY2(::read(opened, event.data(), event.size()) < 0, "the file was opened");
        ::close(opened);
    }

protected:
    void prepare() override { qputenv("KQL_LOG", "9"); }

private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(TstStream)
#include "tst_stream.moc"
