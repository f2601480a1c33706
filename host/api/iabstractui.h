#pragma once

#include "host/api/kqhostexport.h"

#include <string>

namespace KQPluginAPI
{

class IAbstractWidget;

/// Makes and owns a plug-in's widgets. The order of the operations is binary interface.
class KQHOST_EXPORT IAbstractUI
{
public:
    virtual ~IAbstractUI();

    virtual IAbstractWidget* CreateWidget() = 0;
    /// Null when no widget has this id.
    virtual IAbstractWidget* FindWidget(const std::string& id) = 0;
};

} // namespace KQPluginAPI
