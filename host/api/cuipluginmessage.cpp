#include "host/api/cuipluginmessage.h"

#include <QCoreApplication>
#include <QThread>

namespace UICommonMdl
{

CUIPluginMessage::CUIPluginMessage()
{
    qRegisterMetaType<PluginMsg_Param>();
    if (const QCoreApplication* app = QCoreApplication::instance())
        moveToThread(app->thread());
}

void CUIPluginMessage::PostEvent(const PluginMsg_Param& message)
{
    const auto deliver = [this, message]() { emit sgnPluginMessage(message); };
    QMetaObject::invokeMethod(this, deliver, Qt::QueuedConnection);
}

} // namespace UICommonMdl

template<>
UICommonMdl::CUIPluginMessage& KQGUI::KQSingleton<UICommonMdl::CUIPluginMessage>::Instance()
{
    // Never destroyed: a plug-in may post while the process is already ending.
    static auto* const bus = new UICommonMdl::CUIPluginMessage;
    return *bus;
}
