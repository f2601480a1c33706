#include "plugin/cintelligentruleswidget.h"

#include "host/api/cuipluginmessage.h"
#include "host/api/kqsingleton.h"
#include "host/api/pluginmessages.h"
#include "host/api/pluginmsg_param.h"
#include "host/json/reader.h"
#include "host/json/value.h"
#include "plugin/cintelligentrulesctrl.h"
#include "plugin/modulelifetime.h"

#include <QCoreApplication>
#include <QEvent>

namespace IntelligentRulesUI
{

CIntelligentRulesWidget::CIntelligentRulesWidget(CommonData::CInterfaceSetManager* manager,
                                                 int widgetsBefore)
    : m_manager(manager), m_index(widgetsBefore + 1)
{
}

CIntelligentRulesWidget::~CIntelligentRulesWidget()
{
    // Without an application no window can be deleted any more; the process is about to end.
    if (!m_ctrl || !QCoreApplication::instance())
        return;
    // A window that stays with the host holds nothing of GDI+, which is about to end.
    if (m_hadOwner)
        m_ctrl->clearData();
    else
        delete m_ctrl;
}

bool CIntelligentRulesWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ctrl && event->type() == QEvent::ParentChange)
        m_hadOwner = m_hadOwner || watched->parent();
    return QObject::eventFilter(watched, event);
}

QString CIntelligentRulesWidget::widgetId() const
{
    return QStringLiteral("%1%2").arg(QLatin1String(kModuleName)).arg(m_index);
}

std::string CIntelligentRulesWidget::GetWidgetID()
{
    return widgetId().toStdString();
}

QWidget* CIntelligentRulesWidget::GetWidget(QWidget* parent)
{
    if (!m_ctrl) {
        m_ctrl = new CIntelligentRulesCtrl(widgetId(), parent);
        m_hadOwner = parent;
        m_ctrl->installEventFilter(this);
        connect(m_ctrl, &CIntelligentRulesCtrl::sgnEnding, this, [this] { m_ctrl.clear(); });
        m_ctrl->setInterfaceSetManager(m_manager);
    }
    return m_ctrl;
}

bool CIntelligentRulesWidget::OnPluginMessage(int id, const QVariant& p1, const QVariant& p2)
{
    switch (id) {
    case PluginMsgOpenRules:
    case PluginMsgOpenRulesAlt:
        return openRules(p1, p2);
    case PluginMsgCloseRules:
        if (p1.toString() == widgetId() && m_ctrl)
            m_ctrl->clearData();
        return true;
    case PluginMsgQueryUnfinishedDraw:
        return queryUnfinishedDraw(p1, p2);
    default:
        return true;
    }
}

bool CIntelligentRulesWidget::openRules(const QVariant& p1, const QVariant& p2)
{
    kql::Json::Value address;
    if (!kql::Json::Reader().parse(p1.toString(), address, true))
        return false;
    const kql::Json::Value& constAddress = address;
    if (constAddress["pluginWidgetID"].asString() == widgetId() && m_ctrl)
        m_ctrl->setData(p2.toString(), constAddress["iSessionID"].asInt());
    return true;
}

bool CIntelligentRulesWidget::queryUnfinishedDraw(const QVariant& p1, const QVariant& p2)
{
    kql::Json::Value query;
    if (!kql::Json::Reader().parse(p2.toString(), query, true) || !query.isMember("params"))
        return false;
    const kql::Json::Value& params = qAsConst(query)["params"];
    if (p1.toString() == widgetId())
        replyUnfinishedDraw(params["channalId"].asString(), params["algorithmId"].asString());
    return true;
}

void CIntelligentRulesWidget::replyUnfinishedDraw(const QString& channel, const QString& algorithm)
{
    kql::Json::Value reply(kql::Json::ValueType::Object);
    reply["unFinishedDraw"] = m_ctrl && m_ctrl->isDrawUnfinished(channel, algorithm);
    reply["algorithmId"] = algorithm;
    reply["channalId"] = channel;
    KQGUI::KQSingleton<UICommonMdl::CUIPluginMessage>::Instance().PostEvent(
        {PluginMsgUnfinishedDrawReply, widgetId(), reply.toStyledText()});
}

} // namespace IntelligentRulesUI
