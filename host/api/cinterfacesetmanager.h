#pragma once

#include "host/api/kqhostexport.h"

#include <QList>

namespace KQPluginAPI
{
class IClientLogicalPluginAPI;
}

namespace CommonData
{

/// A plug-in's handle to the host's managers: the logical plug-ins that it was given.
class KQHOST_EXPORT CInterfaceSetManager
{
public:
    /// The plug-in stays the caller's. False for null and for one that is already registered.
    bool AddLogicalPlugin(KQPluginAPI::IClientLogicalPluginAPI* plugin)
    {
        if (!plugin || m_logicalPlugins.contains(plugin))
            return false;
        m_logicalPlugins.append(plugin);
        return true;
    }
    /// False for one that is not registered.
    bool RemoveLogicalPlugin(KQPluginAPI::IClientLogicalPluginAPI* plugin)
    {
        return m_logicalPlugins.removeOne(plugin);
    }

private:
    QList<KQPluginAPI::IClientLogicalPluginAPI*> m_logicalPlugins; ///< not owned
};

} // namespace CommonData
