#pragma once

#include "host/api/ipluginapi.h"

namespace KQPluginAPI
{

/// A plug-in without windows, which the host registers with those that have some.
class KQHOST_EXPORT IClientLogicalPluginAPI : public IPluginAPI
{
public:
    ~IClientLogicalPluginAPI() override;
};

} // namespace KQPluginAPI
