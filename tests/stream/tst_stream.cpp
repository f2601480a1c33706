#include "host/channelsources.h"
#include "host/playoutclock.h"
#include "host/qrtspvideownd.h"
#include "host/rtspvideoparam.h"
#include "host/streamsource.h"
#include "tests/stream/server.h"
#include "tests/stream/videofile.h"
#include "tests/support/rulestest.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QThread>
#include <QtEndian>

#include <csignal>
#include <unistd.h>

using namespace UICommonMdl;
using namespace std::chrono_literals;

Q_DECLARE_METATYPE(VideoFile)

namespace
{

constexpr int kPatience = 30000;

StreamRequest request(const QString& address, bool isFile = false, StreamOptions options = {})
{
    StreamRequest request;
    request.address = address;
    request.isFile = isFile;
    request.options = options;
    return request;
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
    QByteArray text() const
    {
        QFile file(m_file.fileName());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

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
            return QStringLiteral("bar %1 is %2").arg(i).arg(color.name());
    }
    return {};
}

const QList<QColor> kColorBars{Qt::white,   Qt::yellow, Qt::cyan, Qt::green,
                               Qt::magenta, Qt::red,    Qt::blue};
const QList<QColor> kFileBars{Qt::red, Qt::blue};

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The AVI's picture width, as its stream's format tells it, replaced.
QByteArray withWidth(QByteArray avi, qint32 width)
{
    qToLittleEndian(width, avi.data() + avi.indexOf("strf") + 12);
    return avi;
}

} // namespace

class TstStream : public RulesTest
{
    Q_OBJECT

private slots:
    void keepsTime();
    void playsStreams_data();
    void playsStreams();
    void comesBack();
    void tellsWhyNothingComes_data();
    void tellsWhyNothingComes();
    void givesUpASilentCamera();
    void triesAgainAndKeepsSecrets();
    void closesAtOnce();
    void playsFiles_data();
    void playsFiles();
    void dropsWhatNobodyTakes();
    void refusesFiles_data();
    void refusesFiles();
    void refusesOtherAddresses();
    void isSentToStreamsOnly();
    void playsEncryptedStreams();

protected:
    void prepare() override;

private:
    QString file(const QString& name, const QByteArray& content = {}) const;

    QTemporaryDir m_folder;
};

void TstStream::prepare()
{
    qputenv("KQL_LOG", "9");
}

QString TstStream::file(const QString& name, const QByteArray& content) const
{
    const QString path = m_folder.filePath(name);
    QFile written(path);
    if (!content.isNull() && written.open(QIODevice::WriteOnly))
        written.write(content);
    return path;
}

void TstStream::keepsTime()
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

void TstStream::playsStreams_data()
{
    QTest::addColumn<QStringList>("server");
    QTest::addColumn<bool>("udp");
    QTest::addColumn<int>("delay");
    QTest::addColumn<QString>("codec");
    const auto h264 = QStringLiteral("H.264");
    const QStringList udpOnly{QStringLiteral("--udp-only")};
    const QStringList jpeg{QStringLiteral("--codec"), QStringLiteral("jpeg")};
    QTest::newRow("TCP") << QStringList() << false << 0 << h264;
    QTest::newRow("UDP") << QStringList() << true << 0 << h264;
    QTest::newRow("TCP is refused") << udpOnly << false << 0 << h264;
    QTest::newRow("delayed") << QStringList() << false << 300 << h264;
    QTest::newRow("JPEG") << jpeg << false << 0 << QStringLiteral("MJPEG");
}

void TstStream::playsStreams()
{
    QFETCH(QStringList, server);
    QFETCH(bool, udp);
    QFETCH(int, delay);
    Server camera(server);
    QVERIFY(camera.isRunning());
    StreamSource source(request(camera.address(), false, {udp, delay}));
    QSignalSpy ready(&source, &PictureSource::sgnPictureReady);
    source.start();
    QCOMPARE(source.status().state, PictureState::Connecting);
    QTRY_VERIFY_WITH_TIMEOUT(ready.count() > 5, kPatience);
    QCOMPARE(source.status().state, PictureState::Playing);
    QCOMPARE(source.pictureSize(), QSize(320, 240));
    QCOMPARE(wrongBars(source.picture(), kColorBars), QString());
    source.setTargetSize({141, 106});
    QTRY_COMPARE(source.picture().size(), QSize(141, 106));
    QCOMPARE(wrongBars(source.picture(), kColorBars), QString());
    QCOMPARE(source.fullPicture().size(), QSize(320, 240));
    const PictureStatistics statistics = source.statistics();
    QTEST(statistics.codec, "codec");
    QCOMPARE(statistics.size, QSize(320, 240));
    QVERIFY(statistics.picturesPerSecond > 0);
}

void TstStream::comesBack()
{
    Server camera;
    QVERIFY(camera.isRunning());
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
    QTRY_COMPARE_WITH_TIMEOUT(surface.statusText(), QString(), kPatience);
    camera.kill();
    QTRY_VERIFY_WITH_TIMEOUT(surface.statusText().contains(QStringLiteral("No signal")), kPatience);
    QVERIFY(surface.statusText().contains(QStringLiteral("Last picture: ")));
    QCOMPARE(surface.paneRect(0), QRect(0, 0, 400, 300));
    QCOMPARE(wrongBars(surface.grab().toImage(), kColorBars), QString());
    camera.start();
    QTRY_COMPARE_WITH_TIMEOUT(surface.statusText(), QString(), kPatience);
    QCOMPARE(sizes, QList<QSize>({QSize(320, 240)}));
    surface.closeRtsp(3, 1);
    QCOMPARE(surface.paneRect(0), QRect());
}

void TstStream::tellsWhyNothingComes_data()
{
    QTest::addColumn<QStringList>("server");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    const auto bars = QStringLiteral("bars");
    const QStringList guarded{QStringLiteral("--user"), QStringLiteral("viewer"),
                              QStringLiteral("--password"), QStringLiteral("right")};
    const QStringList silent{QStringLiteral("--silent")};
    const auto refused = QStringLiteral("not accepted");
    QTest::newRow("wrong path") << QStringList() << QString() << QStringLiteral("nothing")
                                << QStringLiteral("no stream of this name");
    QTest::newRow("no password") << guarded << QString() << bars << refused;
    QTest::newRow("wrong password")
        << guarded << QStringLiteral("viewer:wrong@") << bars << refused;
    QTest::newRow("silent") << silent << QString() << bars << QStringLiteral("no answer");
}

void TstStream::tellsWhyNothingComes()
{
    QFETCH(QStringList, server);
    QFETCH(QString, user);
    QFETCH(QString, path);
    QFETCH(QString, reason);
    Server camera(server);
    QVERIFY(camera.isRunning());
    StreamRequest asked = request(camera.address(user, path));
    asked.silenceLimit = 2s;
    StreamSource source(asked);
    source.start();
    QTRY_COMPARE_WITH_TIMEOUT(source.status().state, PictureState::NoSignal, kPatience);
    QVERIFY2(source.status().reason.contains(reason), qPrintable(source.status().reason));
    QVERIFY(source.picture().isNull() && !source.status().lastPicture.isValid());
}

void TstStream::givesUpASilentCamera()
{
    Server camera;
    QVERIFY(camera.isRunning());
    StreamRequest asked = request(camera.address());
    asked.silenceLimit = 2s;
    StreamSource source(asked);
    source.start();
    QTRY_COMPARE_WITH_TIMEOUT(source.status().state, PictureState::Playing, kPatience);
    camera.send(SIGSTOP);
    QTRY_COMPARE_WITH_TIMEOUT(source.status().state, PictureState::NoSignal, kPatience);
    QVERIFY(source.status().reason.contains(QStringLiteral("nothing comes any more")));
    QVERIFY(!source.picture().isNull());
    camera.send(SIGCONT);
    QTRY_COMPARE_WITH_TIMEOUT(source.status().state, PictureState::Playing, kPatience);
}

void TstStream::triesAgainAndKeepsSecrets()
{
    const ErrorOutput output;
    const QStringList guarded{QStringLiteral("--user"), QStringLiteral("viewer"),
                              QStringLiteral("--password"), QStringLiteral("s3cr3t")};
    Server camera(guarded);
    QVERIFY(camera.isRunning());
    StreamSource source(request(camera.address(QStringLiteral("viewer:s3cr3t@"))));
    source.start();
    QTRY_COMPARE_WITH_TIMEOUT(source.status().state, PictureState::Playing, kPatience);
    camera.kill();
    QTRY_COMPARE_WITH_TIMEOUT(source.status().state, PictureState::NoSignal, kPatience);
    QElapsedTimer timer;
    timer.start();
    const QByteArray refusal = "***@127.0.0.1:";
    QTRY_COMPARE_WITH_TIMEOUT(output.text().count(refusal), 3, kPatience);
    QVERIFY2(timer.elapsed() > 2800, "tries after 1 and 2 seconds");
    QVERIFY(source.status().reason.contains(QStringLiteral("refused")));
    camera.start(guarded);
    QTRY_COMPARE_WITH_TIMEOUT(source.status().state, PictureState::Playing, kPatience);
    const QByteArray said = output.text() + source.status().reason.toUtf8();
    for (const char* secret : {"s3cr3t", "viewer", "dmlld2VyOnMzY3IzdA"})
        QVERIFY2(!said.contains(secret), said.constData());
}

void TstStream::closesAtOnce()
{
    Server camera;
    Server silent({QStringLiteral("--silent")});
    QVERIFY(camera.isRunning() && silent.isRunning());
    QVERIFY(VideoFile{"mjpeg"}.write(file(QStringLiteral("closed.avi"))));
    const StreamRequest requests[] = {request(camera.address()), request(silent.address()),
                                      request(file(QStringLiteral("closed.avi")), true)};
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
                QTRY_VERIFY_WITH_TIMEOUT(!source->picture().isNull(), kPatience);
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

void TstStream::playsFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<VideoFile>("video");
    QTest::addColumn<QString>("codec");
    const VideoFile slow{"libx264", {64, 48}, 10, 8};
    QTest::newRow("H.264") << QStringLiteral("a.mp4") << slow << QStringLiteral("H.264");
    QTest::newRow("bare H.264") << QStringLiteral("a.h264") << slow << QStringLiteral("H.264");
    QTest::newRow("H.265") << QStringLiteral("b.mkv") << VideoFile{"libx265", {64, 48}, 10, 8}
                           << QStringLiteral("H.265");
    QTest::newRow("MJPEG") << QStringLiteral("c.avi") << VideoFile{"mjpeg", {64, 48}, 10, 8}
                           << QStringLiteral("MJPEG");
    QTest::newRow("bare MJPEG") << QStringLiteral("c.mjpeg") << VideoFile{"mjpeg", {64, 48}, 25, 8}
                                << QStringLiteral("MJPEG");
    QTest::newRow("one picture") << QStringLiteral("d.avi") << VideoFile{"mjpeg", {64, 48}, 10, 1}
                                 << QStringLiteral("MJPEG");
}

void TstStream::playsFiles()
{
    QFETCH(QString, name);
    QFETCH(VideoFile, video);
    const QString path = file(name);
    QVERIFY(video.write(path));
    const auto source = KQGUI::KQSingleton<ChannelSources>::Instance().makeSource(path);
    source->setTargetSize({33, 25});
    QSignalSpy ready(source.get(), &PictureSource::sgnPictureReady);
    source->start();
    QTRY_VERIFY_WITH_TIMEOUT(ready.count() > 0, kPatience);
    QElapsedTimer timer;
    timer.start();
    const auto count = [&]() { return ready.count() + source->statistics().dropped; };
    const qint64 first = count();
    QTRY_VERIFY_WITH_TIMEOUT(count() >= first + 12, kPatience);
    // Eleven whole distances at least, whatever the first picture waited for.
    const int shortest =
        11 * 1000 / (name.endsWith(QStringLiteral(".h264")) ? 25 : video.picturesPerSecond);
    QVERIFY2(timer.elapsed() > shortest - 150, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(source->picture().size(), QSize(33, 25));
    QCOMPARE(wrongBars(source->picture(), kFileBars), QString());
    QTEST(source->statistics().codec, "codec");
}

void TstStream::dropsWhatNobodyTakes()
{
    const QString path = file(QStringLiteral("dropped.avi"));
    QVERIFY(VideoFile{"mjpeg"}.write(path));
    StreamSource source(request(path, true));
    QSignalSpy ready(&source, &PictureSource::sgnPictureReady);
    source.start();
    QTRY_VERIFY_WITH_TIMEOUT(ready.count() > 0, kPatience);
    const int taken = ready.count();
    const qint64 before = source.statistics().dropped;
    QElapsedTimer timer;
    timer.start();
    while (source.statistics().dropped < before + 5 && timer.elapsed() < kPatience)
        QThread::msleep(5); // no events: the GUI has no time
    QCOMPARE(ready.count(), taken);
    QCoreApplication::processEvents();
    QVERIFY(ready.count() <= taken + 2);
    QVERIFY(source.statistics().dropped >= before + 5);
}

void TstStream::refusesFiles_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    const QString mp4 = file(QStringLiteral("good.mp4"));
    const QString avi = file(QStringLiteral("good.avi"));
    const QString raw = file(QStringLiteral("raw.avi"));
    QVERIFY(VideoFile{"libx264"}.write(mp4) && VideoFile{"mjpeg"}.write(avi) &&
            VideoFile{"rawvideo"}.write(raw));
    const QByteArray good = contentOf(mp4);
    const QByteArray pictures = contentOf(avi);
    QByteArray unknown = pictures;
    unknown.replace("MJPG", "ZzQq");
    const auto unreadable = QStringLiteral("no video that can be read");
    const auto range = QStringLiteral(", is out of range");
    QTest::newRow("text") << file(QStringLiteral("text.mp4"), "not a video") << unreadable;
    QTest::newRow("empty") << file(QStringLiteral("empty.mp4"), "") << QString();
    QTest::newRow("half") << file(QStringLiteral("half.mp4"), good.left(good.size() / 2))
                          << QStringLiteral("no video");
    const QByteArray header = pictures.left(pictures.indexOf("movi") + 4);
    QTest::newRow("header only") << file(QStringLiteral("header.avi"), header)
                                 << QStringLiteral("no picture in it");
    QTest::newRow("unknown codec") << file(QStringLiteral("unknown.avi"), unknown)
                                   << QStringLiteral("coding of the video is not known");
    QTest::newRow("too wide") << file(QStringLiteral("wide.avi"), withWidth(pictures, 16385))
                              << QStringLiteral("16385 x 48") + range;
    QTest::newRow("no width") << file(QStringLiteral("narrow.avi"), withWidth(contentOf(raw), 0))
                              << QStringLiteral("0 x 48") + range;
    QTest::newRow("no file") << file(QStringLiteral("missing.mp4"))
                             << QStringLiteral("no such file");
    QTest::newRow("folder") << m_folder.path() << QStringLiteral("a folder");
    QTest::newRow("protocol") << QStringLiteral("concat:") + mp4 << QStringLiteral("no such file");
}

void TstStream::refusesFiles()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    StreamSource source(request(path, true));
    source.start();
    QTRY_COMPARE_WITH_TIMEOUT(source.status().state, PictureState::NoSignal, kPatience);
    QVERIFY2(source.status().reason.contains(reason), qPrintable(source.status().reason));
    QVERIFY(!source.status().reason.isEmpty());
    QVERIFY(source.picture().isNull() && source.pictureSize().isEmpty());
}

void TstStream::refusesOtherAddresses()
{
    auto& sources = KQGUI::KQSingleton<ChannelSources>::Instance();
    for (const char* scheme : {"http", "rtmp", "concat", "rtspx", ""}) {
        const auto source =
            sources.makeSource(QLatin1String(scheme) + QStringLiteral("://user:s3cr3t@host/path"));
        source->start();
        QCOMPARE(source->status().state, PictureState::NoSignal);
        QVERIFY(source->status().reason.contains(QStringLiteral("://***@host/path")));
        QVERIFY(!source->status().reason.contains(QStringLiteral("s3cr3t")));
    }
}

/// A camera may send its client to another address, but never to a file or another protocol.
void TstStream::isSentToStreamsOnly()
{
    const QString video = file(QStringLiteral("elsewhere.avi"));
    QVERIFY(VideoFile{"mjpeg"}.write(video));
    Server bars;
    QVERIFY(bars.isRunning());
    const auto comes = [](const QString& address) {
        StreamSource source(request(address));
        source.start();
        return QTest::qWaitFor(
                   [&source] {
                       return source.status().state == PictureState::NoSignal ||
                              !source.picture().isNull();
                   },
                   kPatience) &&
               !source.picture().isNull();
    };
    for (const QString& location :
         {"file://" + video, "file:" + video, video, "rtsp:" + video, "concat:" + video,
          QString(bars.address()).replace("rtsp:", "http:"), QString()}) {
        Server camera({QStringLiteral("--location"), location});
        QVERIFY(camera.isRunning());
        QVERIFY2(!comes(camera.address()), qPrintable(location));
        QTRY_VERIFY(camera.printed().contains("rtsp://127.0.0.1"));
    }
    Server camera({QStringLiteral("--location"), bars.address()});
    QVERIFY(camera.isRunning() && comes(camera.address()));
    // An option behind the address that asks for a tunnel gets none.
    Server untunnelled({QStringLiteral("--location"), bars.address()});
    QVERIFY(untunnelled.isRunning());
    comes(untunnelled.address() + QStringLiteral("?http"));
    QTRY_VERIFY(untunnelled.printed().contains(" rtsp://"));
    QVERIFY2(!untunnelled.printed().contains("HTTP"), untunnelled.printed().constData());
}

void TstStream::playsEncryptedStreams()
{
    const QString certificate = file(QStringLiteral("certificate.pem"));
    const QString key = file(QStringLiteral("key.pem"));
    QProcess openssl;
    openssl.start(QStringLiteral("openssl"),
                  {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj",
                   "/CN=127.0.0.1", "-keyout", key, "-out", certificate});
    QVERIFY(openssl.waitForFinished(kPatience) && openssl.exitCode() == 0);
    Server camera({QStringLiteral("--certificate"),
                   file(QStringLiteral("both.pem"), contentOf(certificate) + contentOf(key))});
    QVERIFY(camera.isRunning());
    QString address = camera.address();
    StreamSource source(request(address.replace("rtsp:", "rtsps:")));
    source.start();
    QTRY_VERIFY2_WITH_TIMEOUT(!source.picture().isNull(), qPrintable(source.status().reason),
                              kPatience);
    QCOMPARE(wrongBars(source.picture(), kColorBars), QString());
    // The same server has nothing for those who do not encrypt.
    StreamSource plain(request(address.replace("rtsps:", "rtsp:")));
    plain.start();
    QTRY_COMPARE_WITH_TIMEOUT(plain.status().state, PictureState::NoSignal, kPatience);
}

QTEST_MAIN(TstStream)
#include "tst_stream.moc"
