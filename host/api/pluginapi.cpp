#include "host/api/iabstractui.h"
#include "host/api/iabstractwidget.h"
#include "host/api/iclientlogicalpluginapi.h"
#include "host/api/iclientuipluginapi.h"
#include "host/api/ipluginapi.h"

// The interfaces' destructors are here, so that each table of operations exists once a process.
namespace KQPluginAPI
{

IPluginAPI::~IPluginAPI() = default;
IClientLogicalPluginAPI::~IClientLogicalPluginAPI() = default;
IClientUIPluginAPI::~IClientUIPluginAPI() = default;
IAbstractUI::~IAbstractUI() = default;
IAbstractWidget::~IAbstractWidget() = default;

} // namespace KQPluginAPI
