#include "host/api/cinterfacesetmanager.h"

namespace CommonData
{

bool CInterfaceSetManager::AddLogicalPlugin(KQPluginAPI::IClientLogicalPluginAPI* plugin)
{
    if (!plugin || m_logicalPlugins.contains(plugin))
        return false;
    m_logicalPlugins.append(plugin);
    return true;
}

bool CInterfaceSetManager::RemoveLogicalPlugin(KQPluginAPI::IClientLogicalPluginAPI* plugin)
{
    return m_logicalPlugins.removeOne(plugin);
}

} // namespace CommonData
