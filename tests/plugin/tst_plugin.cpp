#include "host/api/iabstractwidget.h"
#include "host/api/iclientlogicalpluginapi.h"
#include "tests/support/loadedplugin.h"
#include "tests/support/mailbox.h"
#include "tests/support/sampledocuments.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace SampleDocuments;
using kql::Json::Value;
using KQPluginAPI::IAbstractWidget;

namespace
{

const char kMe[] = "IntelligentRulesUI1";

enum Message { CloseRules = 0, OpenRules = 160, QueryDraw = 222, OpenRulesAlt = 566 };

struct LogicalPlugin : KQPluginAPI::IClientLogicalPluginAPI {
    std::string GetPluginName() override { return "Logical"; }
    std::string GetRightName() override { return {}; }
};

QString address(const QString& widgetId)
{
    return QString(R"({"pluginWidgetID": "%1", "iSessionID": 4} // who)").arg(widgetId);
}

QString rules(const QByteArray& channel)
{
    return block("\"channalId\": \"" + channel + "\"", config(rule("Gate")));
}

const QString kQuery = QString(R"({"params": {"algorithmId": "crossing", "channalId": "C1"}})");

} // namespace

class TstPlugin : public RulesTest
{
    Q_OBJECT

    IAbstractWidget* widget() { return m_plugin.widget(); }

    static bool isLoaded(const QWidget* window) { return window->findChild<QWidget*>("rules"); }

    /// Loaded anew for each test, so that none depends on what another left.
    void prepareTest() override
    {
        QLocale::setDefault(QLocale::c());
        m_plugin.load();
    }

    LoadedPlugin m_plugin;

private slots:
    void showsOnlyWhatTheHostLooksFor()
    {
        const QJsonObject data = m_plugin.loader.metaData();
        QCOMPARE(data["IID"].toString(), QString("com.KQPluginAPI.IClientUIPluginAPI(1.0)"));
        QCOMPARE(data["className"].toString(), QString("CIntelligentRulesUIPlugin"));
        QCOMPARE(data["MetaData"].toObject(),
                 QJsonObject({{"Keys", QJsonArray({"IntelligentRulesUI"})}}));
        const QString nm = QStandardPaths::findExecutable("nm");
        QVERIFY2(!nm.isEmpty(), "nm is not installed");
        QProcess process;
        process.start(nm, {"-D", "-P", "--defined-only", m_plugin.loader.fileName()});
        QVERIFY(process.waitForFinished());
        QStringList names;
        for (const QByteArray& line : process.readAllStandardOutput().trimmed().split('\n'))
            names.append(line.left(line.indexOf(' ')));
        names.sort();
        const QString metadata = QStringLiteral("qt_plugin_query_metadata");
        QCOMPARE(names, QStringList({"qt_plugin_instance",
                                     QT_VERSION_MAJOR < 6 ? metadata : metadata + "_v2"}));
    }

    void answersTheHost()
    {
        QCOMPARE(m_plugin->GetPluginName(), std::string("IntelligentRulesUI"));
        QCOMPARE(m_plugin->GetRightName(), std::string("Default Right"));
        QVERIFY(m_plugin->IsAvailable());
        LogicalPlugin logical;
        QVERIFY(!m_plugin->AddLogicalPlugin(nullptr));
        QVERIFY_BOTH(m_plugin->AddLogicalPlugin(&logical), !m_plugin->AddLogicalPlugin(&logical));
        QVERIFY(m_plugin->RemoveLogicalPlugin(&logical));
        QVERIFY(!m_plugin->RemoveLogicalPlugin(&logical));
        auto* const ui = m_plugin->GetUI();
        m_plugin->Init();
        QCOMPARE(m_plugin->GetUI(), ui);

        IAbstractWidget* const first = widget();
        IAbstractWidget* const second = widget();
        QCOMPARE(ui->FindWidget(kMe), first);
        QCOMPARE(ui->FindWidget("IntelligentRulesUI2"), second);
        for (const char* other : {"", "IntelligentRulesUI", "IntelligentRulesUI3"})
            QVERIFY2(!ui->FindWidget(other), other);
        QCOMPARE(first->GetTitle() + first->GetSecondTitle() + first->GetThirdTitle(),
                 QString("IntelligentRules").repeated(3));
        QCOMPARE(first->GetDetail(), QString("IntelligentRulesDetail"));
        QWidget parent;
        QWidget* const window = first->GetWidget(&parent);
        QCOMPARE(window->parentWidget(), &parent);
        QCOMPARE(first->GetWidget(nullptr), window);
    }

    void speaksTheOperatorsLanguage()
    {
        QLocale::setDefault(QLocale(QLocale::German));
        m_plugin.load();
        const auto title = [] {
            return QCoreApplication::translate("IntelligentRulesUI::CIntelligentRulesWidget",
                                               "IntelligentRules");
        };
        const QString german = title();
        QCOMPARE(widget()->GetTitle(), german);
        m_plugin->UnInit();
        QVERIFY(title() != german);
        // Those beside the plug-in come first.
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir("translations"));
        QVERIFY(QFile::copy(RULES_BIN_DIR "/../plugin/IntelligentRulesUI_zh_CN.qm",
                            folder.filePath("translations/IntelligentRulesUI_de.qm")));
        QCoreApplication::addLibraryPath(folder.path());
        m_plugin.load();
        const QString beside = title();
        QCoreApplication::removeLibraryPath(folder.path());
        m_plugin.load();
        QVERIFY2(beside != german && title() == german, qPrintable(beside));
    }

    /// To a widget without a window, to one that is empty, and to one that is loaded.
    void readsMessages()
    {
        enum Answer { Refused, Accepted, Replied };
        Mailbox mailbox;
        IAbstractWidget* const target = widget();
        const auto check = [&](int id, const QVariant& p1, const QVariant& p2, Answer answer) {
            const QString text = QString::number(id) + p1.toString() + p2.toString();
            QVERIFY2(target->OnPluginMessage(id, p1, p2) == (answer != Refused), qPrintable(text));
            QVERIFY2(mailbox.take().size() == int(answer == Replied), qPrintable(text));
        };
        const auto sendAll = [&] {
            check(QueryDraw, kMe, {}, Refused);
            check(QueryDraw, "other", "{]", Refused);
            check(QueryDraw, kMe, R"({"param": {}})", Refused);
            check(QueryDraw, kMe, R"(["params"])", Refused);
            check(QueryDraw, kMe, R"({"params": 3})", Replied);
            check(QueryDraw, "other", kQuery, Accepted);
            check(QueryDraw, kMe, kQuery, Replied);
            check(CloseRules, "other", {}, Accepted);
            check(996, kMe, rules("C1"), Accepted);
            for (const int id : {OpenRules, OpenRulesAlt}) {
                check(id, {}, {}, Refused);
                check(id, kMe, rules("C1"), Refused);
                check(id, R"({"iSessionID": 1})", rules("C1"), Accepted);
                check(id, "[1]", rules("C1"), Accepted);
                check(id, address("intelligentrulesui1"), rules("C1"), Accepted);
                check(id, address("IntelligentRulesUI2"), rules("C1"), Accepted);
            }
        };
        QWidget parent;
        sendAll();
        QVERIFY(target->OnPluginMessage(OpenRules, address(kMe), rules("C1")));
        const QWidget* const window = target->GetWidget(&parent);
        sendAll();
        QVERIFY(!isLoaded(window));
        QVERIFY(target->OnPluginMessage(OpenRules, address(kMe), rules("C1")));
        sendAll();
        QVERIFY(isLoaded(window));
        QVERIFY(target->OnPluginMessage(OpenRulesAlt, address(kMe), "{"));
        QVERIFY(!isLoaded(window));
    }
};

QTEST_MAIN(TstPlugin)
#include "tst_plugin.moc"
