#pragma once

#include "host/api/kqhostexport.h"

#include <string>

namespace KQPluginAPI
{

/// What every plug-in of the host answers, whatever it offers.
class KQHOST_EXPORT IPluginAPI
{
public:
    virtual ~IPluginAPI();

    virtual std::string GetPluginName() = 0;
    /// Name of the user right that opens the plug-in.
    virtual std::string GetRightName() = 0;
};

} // namespace KQPluginAPI
