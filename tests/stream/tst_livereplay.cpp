#include "host/json/value.h"
#include "tests/stream/server.h"
#include "tests/support/fixtures.h"
#include "tests/support/rulestest.h"
#include "tests/support/workbenchprogram.h"

using kql::Json::Value;
using WorkbenchFiles::read;

namespace
{

constexpr QSize kSize(1280, 720);
const QString kPerimeter = ExampleFiles::folder();
const QString kUser = "viewer:s3cr3t@";

} // namespace

/// The workbench as a program, with pictures that come from elsewhere.
class TstLiveReplay : public RulesTest, private WorkbenchProgram
{
    Q_OBJECT

    void prepare() override
    {
        environment.insert("KQL_LOG", "9");
        environment.insert("XDG_CONFIG_HOME", path("config"));
    }

    Outcome run(const QStringList& arguments) const
    {
        return WorkbenchProgram::run(documents() + arguments);
    }

    static QString leaked(const QString& said)
    {
        const QRegularExpression secrets("s3cr3t|viewer|dmlld2VyOnMzY3IzdA");
        return said.contains(secrets) ? said : QString();
    }

private slots:
    void givesTheSameResult_data()
    {
        QTest::addColumn<QString>("source");
        QImage still(kSize, QImage::Format_RGB32);
        still.fill(Qt::darkGreen);
        QVERIFY(still.save(path("still.png")));
        QTest::newRow("still") << "still.png";
        QTest::newRow("video") << Fixtures::path("videos/1280x720.avi");
        QTest::newRow("stream") << QString();
    }

    void givesTheSameResult()
    {
        QFETCH(QString, source);
        Server camera({"--width", "1280", "--height", "720"});
        if (source.isEmpty())
            source = camera.address();
        // First the tools come up under the pointer, and a press where they are goes to the
        // picture.
        QFile session(kPerimeter + "session.jsonl");
        QVERIFY(session.open(QIODevice::ReadOnly));
        QByteArray steps = session.readLine() + session.readLine();
        steps += "{\"do\":\"move\",\"at\":[7900,250]}\n{\"do\":\"wait\",\"ms\":900}\n"
                 "{\"do\":\"press\",\"button\":\"left\",\"at\":[7900,250]}\n";
        const Outcome outcome = run({"--source", source, "--result", "result.json", "--replay",
                                     file("session.jsonl", steps + session.readAll())});
        QVERIFY2(outcome.status == SavedOrClosed, qPrintable(outcome.said));
        const Value written = read(path("result.json"));
        QVERIFY2(written["channelAbilityPO"] == read(kPerimeter + "saved.json"),
                 qPrintable(written.toStyledText()));
    }

    /// Where the library that plays streams is missing, all else works, in any folder.
    void doesWithoutTheLibrary()
    {
        const QScopedValueRollback<QString> rollback(programs, path("lean"));
        QVERIFY(QDir().mkdir(programs));
        for (const char* name : {"/rules-workbench", "/libkqhost.so.1", "/IntelligentRulesUI.so"})
            QVERIFY(QFile::copy(QString(RULES_BIN_DIR) + name, programs + name));
        const QString session = file("picture.jsonl", "{\"do\":\"wait\",\"picture\":true}\n");
        Outcome outcome = run({"--source", "still.png", "--replay", session});
        QVERIFY2(outcome.status == SavedOrClosed, qPrintable(outcome.said));
        outcome = run({"--source", Fixtures::path("videos/1280x720.avi"), "--replay", session});
        QVERIFY2(outcome.said.contains("no picture came: No signal The library that plays streams"),
                 qPrintable(outcome.said));
        QCOMPARE(outcome.status, int(StepFailed));
    }

    void keepsSecrets()
    {
        Server camera({"--user", "viewer", "--password", "s3cr3t"});
        const QString address = camera.address(kUser);
        QString closed = address;
        closed.replace(QString::number(QUrl(address).port()), QString::number(1));
        const QByteArray steps = R"({"do":"wait","picture":true}
            {"do":"load","source":"%1"}
            {"do":"wait","ms":1500}
            {"do":"load","config":"none.json","source":"%2"})";
        const QString session = file("secret.jsonl", QString(steps).arg(closed, address).toUtf8());
        const Outcome outcome = run({"--source", address, "--channel-source", "5=" + address,
                                     "--replay", session, "--screenshot", "end.png"});
        QCOMPARE(outcome.status, int(StepFailed));
        for (const char* part :
             {"rtsp://***@127.0.0.1:1/bars: ", "secret.jsonl: line 4: ", "none.json: No such file"})
            QVERIFY2(outcome.said.contains(part), qPrintable(outcome.said));
        QCOMPARE(leaked(outcome.said), QString());
        QVERIFY2(!QDir(path("config")).exists(), "a replay keeps nothing");
    }

    void keepsSecretsOfWrongArguments()
    {
        const QString address = "rtsp://" + kUser + "127.0.0.1/a?b=c";
        const QStringList wrong[] = {{address},
                                     {"--channel-source", address},
                                     {"--sauce=" + address},
                                     {"--type", address},
                                     {"--replay", address},
                                     {"--template", address, "--replay", "none"}};
        for (const QStringList& arguments : wrong) {
            const Outcome outcome = run(arguments);
            QVERIFY2(outcome.status == Unusable, qPrintable(arguments[0]));
            QVERIFY(!outcome.said.isEmpty());
            QCOMPARE(leaked(outcome.said), QString());
        }
    }
};

QTEST_MAIN(TstLiveReplay)
#include "tst_livereplay.moc"
