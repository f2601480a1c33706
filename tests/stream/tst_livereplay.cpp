#include "host/value.h"
#include "tests/stream/server.h"
#include "tests/stream/videofile.h"
#include "tests/support/rulestest.h"
#include "tests/support/workbenchfiles.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

using kql::Json::Value;
using WorkbenchFiles::read;

namespace
{

constexpr int kTimeout = 120000; // milliseconds
constexpr QSize kSize(1280, 720);
const auto kPerimeter = QStringLiteral(RULES_SOURCE_DIR "/examples/perimeter/");
const QStringList kLarge{"--width", "1280", "--height", "720"};
const QStringList kGuarded{"--user", "viewer", "--password", "s3cr3t"};
const auto kUser = QStringLiteral("viewer:s3cr3t@");

} // namespace

/// The workbench as a program, with pictures that come from elsewhere.
class TstLiveReplay : public RulesTest
{
    Q_OBJECT

private slots:
    void givesTheSameResult_data();
    void givesTheSameResult();
    void doesWithoutTheLibrary();
    void keepsSecrets();
    void keepsSecretsOfWrongArguments_data();
    void keepsSecretsOfWrongArguments();

private:
    QString file(const char* name, const QByteArray& content) const;
    /// Exit status; what it wrote is in @p said.
    int run(const QStringList& arguments, QByteArray& said) const;
    static QString leaked(const QByteArray& said);

    QTemporaryDir m_folder;
    QString m_programs = QStringLiteral(RULES_BIN_DIR);
};

QString TstLiveReplay::file(const char* name, const QByteArray& content) const
{
    return WorkbenchFiles::write(m_folder, name, content);
}

int TstLiveReplay::run(const QStringList& arguments, QByteArray& said) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("KQL_LOG", "9");
    environment.insert("XDG_CONFIG_HOME", m_folder.filePath("config"));
    environment.insert("LD_LIBRARY_PATH", m_programs);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder.path());
    process.setProcessChannelMode(QProcess::MergedChannels);
    const QStringList documents{"--template", kPerimeter + "template.json", "--config",
                                kPerimeter + "config.json"};
    process.start(m_programs + "/rules-workbench", documents + arguments);
    const bool ended = process.waitForFinished(kTimeout);
    said = process.readAll();
    return ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QString TstLiveReplay::leaked(const QByteArray& said)
{
    for (const char* secret : {"s3cr3t", "viewer", "dmlld2VyOnMzY3IzdA"}) {
        if (said.contains(secret))
            return QString::fromUtf8(said);
    }
    return {};
}

void TstLiveReplay::givesTheSameResult_data()
{
    QTest::addColumn<QString>("source");
    QImage still(kSize, QImage::Format_RGB32);
    still.fill(Qt::darkGreen);
    QVERIFY(still.save(m_folder.filePath("still.png")));
    QVERIFY((VideoFile{"mjpeg", kSize}.write(m_folder.filePath("video.avi"))));
    QTest::newRow("still") << "still.png";
    QTest::newRow("video") << "video.avi";
    QTest::newRow("stream") << QString();
}

void TstLiveReplay::givesTheSameResult()
{
    QFETCH(QString, source);
    Server camera(kLarge);
    QVERIFY(camera.isRunning());
    if (source.isEmpty())
        source = camera.address();
    // First the tools come up under the pointer, and a press where they are goes to the picture.
    QFile session(kPerimeter + "session.jsonl");
    QVERIFY(session.open(QIODevice::ReadOnly));
    QByteArray steps = session.readLine() + session.readLine();
    steps += "{\"do\":\"move\",\"at\":[7900,250]}\n{\"do\":\"wait\",\"ms\":900}\n"
             "{\"do\":\"press\",\"button\":\"left\",\"at\":[7900,250]}\n";
    QByteArray said;
    const int status = run({"--source", source, "--result", "result.json", "--replay",
                            file("session.jsonl", steps + session.readAll())},
                           said);
    QVERIFY2(status == 0, said.constData());
    const Value written = read(m_folder.filePath("result.json"));
    QVERIFY2(written["channelAbilityPO"] == read(kPerimeter + "saved.json"),
             qPrintable(written.toStyledText()));
}

/// Where the library that plays streams is missing, all else works.
void TstLiveReplay::doesWithoutTheLibrary()
{
    QVERIFY(QDir(m_folder.path()).mkdir("lean"));
    m_programs = m_folder.filePath("lean");
    for (const char* name : {"/rules-workbench", "/libkqhost.so", "/IntelligentRulesUI.so"})
        QVERIFY(QFile::copy(QLatin1String(RULES_BIN_DIR) + name, m_programs + name));
    QByteArray said;
    const QString session = file("picture.jsonl", "{\"do\":\"wait\",\"picture\":true}\n");
    QVERIFY2(run({"--source", "still.png", "--replay", session}, said) == 0, said.constData());
    for (const char* source : {"video.avi", "rtsp://127.0.0.1:1/bars"}) {
        QVERIFY2(run({"--source", source, "--replay", session}, said) == 3, said.constData());
        QVERIFY2(said.contains("no picture came: No signal The library that plays streams"),
                 said.constData());
    }
    m_programs = RULES_BIN_DIR;
}

void TstLiveReplay::keepsSecrets()
{
    Server camera(kGuarded);
    QVERIFY(camera.isRunning());
    const QString address = camera.address(kUser);
    QString closed = address;
    closed.replace(QString::number(QUrl(address).port()), QString::number(1));
    const QString session =
        file("secret.jsonl", "{\"do\":\"wait\",\"picture\":true}\n{\"do\":\"load\",\"source\":\"" +
                                 closed.toUtf8() +
                                 "\"}\n{\"do\":\"wait\",\"ms\":1500}\n{\"do\":\"load\","
                                 "\"config\":\"none.json\",\"source\":\"" +
                                 address.toUtf8() + "\"}\n");
    QByteArray said;
    QCOMPARE(run({"--source", address, "--channel-source", "5=" + address, "--replay", session,
                  "--screenshot", "end.png"},
                 said),
             3);
    QVERIFY2(said.contains("rtsp://***@127.0.0.1:1/bars: "), said.constData());
    QVERIFY2(said.contains("secret.jsonl: line 4: ") && said.contains("none.json: No such file"),
             said.constData());
    QCOMPARE(leaked(said), QString());
    QVERIFY2(!QDir(m_folder.filePath("config")).exists(), "a replay keeps nothing");
}

void TstLiveReplay::keepsSecretsOfWrongArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QString address = "rtsp://" + kUser + "127.0.0.1/a?b=c";
    QTest::newRow("no option") << QStringList{address};
    QTest::newRow("no channel") << QStringList{"--channel-source", address};
    QTest::newRow("unknown option") << QStringList{"--sauce=" + address};
    QTest::newRow("no number") << QStringList{"--type", address};
    QTest::newRow("session") << QStringList{"--replay", address};
    QTest::newRow("template") << QStringList{"--template", address, "--replay", "none"};
}

void TstLiveReplay::keepsSecretsOfWrongArguments()
{
    QFETCH(const QStringList, arguments);
    QByteArray said;
    QCOMPARE(run(arguments, said), 2);
    QVERIFY(!said.isEmpty());
    QCOMPARE(leaked(said), QString());
}

QTEST_MAIN(TstLiveReplay)
#include "tst_livereplay.moc"
