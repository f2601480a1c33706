#pragma once

#include <QMetaType>
#include <QVariant>

namespace UICommonMdl
{

/// One message between the host and a plug-in.
struct PluginMsg_Param {
    int id = 0;
    QVariant p1;
    QVariant p2;
};

} // namespace UICommonMdl

Q_DECLARE_METATYPE(UICommonMdl::PluginMsg_Param)
