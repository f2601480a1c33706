#pragma once

#include "host/api/iclientuipluginapi.h"

#include <QObject>
#include <memory>

namespace CommonData
{
class CInterfaceSetManager;
}

namespace IntelligentRulesUI
{

class CIntelligentRulesUI;

/// The object that the host loads: starts and ends the module and hands out its UI factory.
class CIntelligentRulesUIPlugin : public QObject, public KQPluginAPI::IClientUIPluginAPI
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.KQPluginAPI.IClientUIPluginAPI(1.0)" FILE "intelligentrulesui.json")
    Q_INTERFACES(KQPluginAPI::IClientUIPluginAPI)

public:
    CIntelligentRulesUIPlugin();
    ~CIntelligentRulesUIPlugin() override;

    std::string GetPluginName() override;
    std::string GetRightName() override;
    bool AddLogicalPlugin(KQPluginAPI::IClientLogicalPluginAPI* plugin) override;
    bool RemoveLogicalPlugin(KQPluginAPI::IClientLogicalPluginAPI* plugin) override;
    bool IsAvailable() override { return true; }
    void Update() override {}
    /// Starts GDI+ and, the first time, makes the factory.
    void Init() override;
    /// Deletes the factory with all its widgets and shuts GDI+ down.
    void UnInit() override;
    /// The factory; null before Init() and after UnInit().
    KQPluginAPI::IAbstractUI* GetUI() override;

private:
    std::unique_ptr<CommonData::CInterfaceSetManager> m_manager;
    std::unique_ptr<CIntelligentRulesUI> m_ui;
};

} // namespace IntelligentRulesUI
