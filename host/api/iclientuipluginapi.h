#pragma once

#include "host/api/ipluginapi.h"

#include <QtPlugin>

namespace KQPluginAPI
{

class IAbstractUI;
class IClientLogicalPluginAPI;

/// Root object of a plug-in with windows. The order of the operations is binary interface.
class KQHOST_EXPORT IClientUIPluginAPI : public IPluginAPI
{
public:
    ~IClientUIPluginAPI() override;

    /// The caller keeps the plug-in; false when it cannot be registered.
    virtual bool AddLogicalPlugin(IClientLogicalPluginAPI* plugin) = 0;
    virtual bool RemoveLogicalPlugin(IClientLogicalPluginAPI* plugin) = 0;
    virtual bool IsAvailable() = 0;
    virtual void Update() = 0;
    virtual void Init() = 0;
    virtual void UnInit() = 0;
    /// Stays the plug-in's; null before Init().
    virtual IAbstractUI* GetUI() = 0;
};

} // namespace KQPluginAPI

Q_DECLARE_INTERFACE(KQPluginAPI::IClientUIPluginAPI, "com.KQPluginAPI.IClientUIPluginAPI(1.0)")
