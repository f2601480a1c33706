// A client of the rules plug-in: loads it, shows one rules window and prints its result.
// rules-client TEMPLATE [CONFIGURATION] [--save]; with --save it presses Save itself.
// Exit status: 0 saved, 1 left without saving, 2 something is wrong.
#include "host/api/cuipluginmessage.h"
#include "host/api/iabstractui.h"
#include "host/api/iabstractwidget.h"
#include "host/api/iclientuipluginapi.h"
#include "host/api/kqsingleton.h"
#include "host/api/modulefolder.h"
#include "host/api/pluginmessages.h"
#include "host/api/pluginmsg_param.h"
#include "host/api/rowcontract.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QPluginLoader>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

namespace
{

int refuse(const QString& why)
{
    QTextStream(stderr) << "rules-client: " << why << '\n';
    return 2;
}

/// The object in @p path, an empty one for no path; with @p error where there is none.
QJsonObject read(const QString& path, QString& error)
{
    if (path.isEmpty())
        return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = path + ": " + file.errorString();
        return {};
    }
    const auto document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject())
        error = path + ": not a JSON object";
    const QJsonObject object = document.object(); // a result has the configuration in it
    return object.contains("channelAbilityPO") ? object["channelAbilityPO"].toObject() : object;
}

QString text(const QJsonObject& object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson());
}

/// The text of message 160 for one channel.
QString parameterBlock(const QJsonObject& rules, const QJsonObject& configuration)
{
    return text({{"algorithmId", "1"},
                 {"channalId", "1"},
                 {"channelName", "Gate"},
                 {"videoConfigRuleProperty", rules},
                 {"channelAbilityPO", configuration}});
}

/// Prints the result and ends the program.
void finish(const UICommonMdl::PluginMsg_Param& message)
{
    if (message.id != IntelligentRulesUI::PluginMsgRulesResult)
        return;
    const QByteArray result = message.p2.toString().toUtf8();
    QTextStream(stdout) << QString::fromUtf8(result);
    QCoreApplication::exit(QJsonDocument::fromJson(result)["result"].toInt() == 0 ? 0 : 1);
}

/// Says Yes to the box that a save asks with; one that only refuses it ends the program.
void answer()
{
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
        return;
    QTextStream(stderr) << box->text() << '\n';
    if (QAbstractButton* yes = box->button(QMessageBox::Yes))
        return yes->click();
    box->reject();
    QCoreApplication::exit(1);
}

void save(QWidget* window)
{
    auto* const button = window->findChild<QAbstractButton*>(RowContract::kSave);
    if (!button || !button->isEnabled()) // nothing could be loaded
        return QCoreApplication::exit(2);
    QTimer::singleShot(0, &answer);
    button->click();
}

/// Shows the window of @p plugin with these documents until there is a result.
int run(KQPluginAPI::IClientUIPluginAPI& plugin, const QString& block, bool saves)
{
    KQPluginAPI::IAbstractWidget* widget = plugin.GetUI()->CreateWidget();
    QWidget client;
    auto* const layout = new QVBoxLayout(&client);
    layout->addWidget(widget->GetWidget(&client));
    client.resize(1100, 750);
    client.show();
    const QJsonObject address{{"pluginWidgetID", QString::fromStdString(widget->GetWidgetID())},
                              {"iSessionID", 1}};
    widget->OnPluginMessage(IntelligentRulesUI::PluginMsgOpenRules, text(address), block);
    if (saves)
        QTimer::singleShot(0, &client, [&client] { save(&client); });
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QStringList files = QCoreApplication::arguments().mid(1);
    const bool saves = files.removeAll("--save") > 0;
    QString error;
    const QString block = parameterBlock(read(files.value(0), error), read(files.value(1), error));
    if (files.isEmpty() || !error.isEmpty())
        return refuse(files.isEmpty() ? "TEMPLATE [CONFIGURATION] [--save]" : error);

    // A skin and translations of its own a plug-in finds in library paths.
    QCoreApplication::addLibraryPath(UICommonMdl::moduleFolder());
    QPluginLoader loader(UICommonMdl::moduleFolder() + "/IntelligentRulesUI");
    auto* const plugin = qobject_cast<KQPluginAPI::IClientUIPluginAPI*>(loader.instance());
    if (!plugin)
        return refuse(loader.errorString());
    UICommonMdl::CUIPluginMessage& bus =
        KQGUI::KQSingleton<UICommonMdl::CUIPluginMessage>::Instance();
    QObject::connect(&bus, &UICommonMdl::CUIPluginMessage::sgnPluginMessage, &finish);
    plugin->Init();
    const int status = run(*plugin, block, saves);
    plugin->UnInit();
    loader.unload();
    return status;
}
