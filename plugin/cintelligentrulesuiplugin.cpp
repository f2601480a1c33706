#include "plugin/cintelligentrulesuiplugin.h"

#include "host/api/cinterfacesetmanager.h"
#include "plugin/cintelligentrulesui.h"
#include "plugin/modulelifetime.h"

namespace IntelligentRulesUI
{

CIntelligentRulesUIPlugin::CIntelligentRulesUIPlugin()
    : m_manager(std::make_unique<CommonData::CInterfaceSetManager>())
{
}

CIntelligentRulesUIPlugin::~CIntelligentRulesUIPlugin() = default;

std::string CIntelligentRulesUIPlugin::GetPluginName()
{
    return kModuleName;
}

std::string CIntelligentRulesUIPlugin::GetRightName()
{
    return kRightName;
}

bool CIntelligentRulesUIPlugin::AddLogicalPlugin(KQPluginAPI::IClientLogicalPluginAPI* plugin)
{
    return m_manager && m_manager->AddLogicalPlugin(plugin);
}

bool CIntelligentRulesUIPlugin::RemoveLogicalPlugin(KQPluginAPI::IClientLogicalPluginAPI* plugin)
{
    return m_manager && m_manager->RemoveLogicalPlugin(plugin);
}

void CIntelligentRulesUIPlugin::Init()
{
    startModule();
    if (!m_ui)
        m_ui = std::make_unique<CIntelligentRulesUI>(m_manager.get());
}

void CIntelligentRulesUIPlugin::UnInit()
{
    m_ui.reset();
    endModule();
}

KQPluginAPI::IAbstractUI* CIntelligentRulesUIPlugin::GetUI()
{
    return m_ui.get();
}

} // namespace IntelligentRulesUI
