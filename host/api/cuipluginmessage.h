#pragma once

#include "host/api/kqhostexport.h"
#include "host/api/kqsingleton.h"
#include "host/api/pluginmsg_param.h"

#include <QObject>

namespace UICommonMdl
{

/// The message bus: whatever a plug-in posts reaches those who connect to the signal.
class KQHOST_EXPORT CUIPluginMessage : public QObject
{
    Q_OBJECT

public:
    CUIPluginMessage();

    /// From any thread; delivered later, on the GUI thread, in the order of posting.
    void PostEvent(const PluginMsg_Param& message);

signals:
    void sgnPluginMessage(const UICommonMdl::PluginMsg_Param& message);
};

} // namespace UICommonMdl

template<>
KQHOST_EXPORT UICommonMdl::CUIPluginMessage&
KQGUI::KQSingleton<UICommonMdl::CUIPluginMessage>::Instance();
