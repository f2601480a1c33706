#include "workbench/modulehost.h"

#include "host/api/cuipluginmessage.h"
#include "host/api/iabstractui.h"
#include "host/api/iabstractwidget.h"
#include "host/api/iclientuipluginapi.h"
#include "host/api/kqsingleton.h"
#include "host/api/modulefolder.h"
#include "host/api/pluginmessages.h"
#include "host/api/pluginmsg_param.h"
#include "host/json/value.h"

#include <QCoreApplication>
#include <QFileInfo>

ModuleHost::ModuleHost(QObject* parent) : QObject(parent)
{
    connect(&KQGUI::KQSingleton<UICommonMdl::CUIPluginMessage>::Instance(),
            &UICommonMdl::CUIPluginMessage::sgnPluginMessage, this, &ModuleHost::receive);
}

ModuleHost::~ModuleHost()
{
    if (m_plugin)
        m_plugin->UnInit();
    m_loader.unload();
}

void ModuleHost::use(KQPluginAPI::IClientUIPluginAPI& plugin)
{
    m_plugin = &plugin;
}

bool ModuleHost::load(const QString& pluginFile)
{
    if (!m_plugin && !loadFile(pluginFile))
        return false;
    m_plugin->Init();
    m_widget = m_plugin->GetUI()->CreateWidget();
    return true;
}

bool ModuleHost::loadFile(const QString& pluginFile)
{
    m_loader.setFileName(pluginFile.isEmpty()
                             ? UICommonMdl::moduleFolder() + QStringLiteral("/IntelligentRulesUI")
                             : pluginFile);
    m_plugin = qobject_cast<KQPluginAPI::IClientUIPluginAPI*>(m_loader.instance());
    if (!m_plugin) {
        m_errorText = m_loader.isLoaded() ? tr("%1: not a rules plug-in").arg(m_loader.fileName())
                                          : m_loader.errorString();
        return false;
    }
    // A plug-in finds a skin and translations of its own in the folder beside it.
    QCoreApplication::addLibraryPath(QFileInfo(m_loader.fileName()).absolutePath());
    return true;
}

QWidget* ModuleHost::createWindow(QWidget* parent)
{
    return m_widget ? m_widget->GetWidget(parent) : nullptr;
}

QString ModuleHost::widgetId() const
{
    return m_widget ? QString::fromStdString(m_widget->GetWidgetID()) : QString();
}

bool ModuleHost::open(const QString& parameterBlock)
{
    kql::Json::Value address(kql::Json::ValueType::Object);
    address["pluginWidgetID"] = widgetId();
    address["iSessionID"] = 1;
    return send(IntelligentRulesUI::PluginMsgOpenRules, address.toStyledText(), parameterBlock);
}

bool ModuleHost::queryUnfinishedDraw(const QString& algorithmId, const QString& channelId)
{
    kql::Json::Value query(kql::Json::ValueType::Object);
    query["params"]["algorithmId"] = algorithmId;
    query["params"]["channalId"] = channelId;
    return send(IntelligentRulesUI::PluginMsgQueryUnfinishedDraw, widgetId(), query.toStyledText());
}

bool ModuleHost::close()
{
    return send(IntelligentRulesUI::PluginMsgCloseRules, widgetId(), {});
}

bool ModuleHost::send(int id, const QString& p1, const QString& p2)
{
    if (!m_widget)
        return false;
    emit sgnMessage({MessageRecord::Direction::ToModule, id, p1, p2});
    return m_widget->OnPluginMessage(id, p1, p2);
}

void ModuleHost::receive(const UICommonMdl::PluginMsg_Param& message)
{
    emit sgnMessage({MessageRecord::Direction::FromModule, message.id, message.p1.toString(),
                     message.p2.toString()});
}
