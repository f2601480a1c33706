#include "host/iabstractui.h"
#include "host/iabstractwidget.h"
#include "host/iclientlogicalpluginapi.h"
#include "host/iclientuipluginapi.h"
#include "host/ipluginapi.h"

// The interfaces' destructors are here, so that each table of operations exists once a process.
namespace KQPluginAPI
{

IPluginAPI::~IPluginAPI() = default;
IClientLogicalPluginAPI::~IClientLogicalPluginAPI() = default;
IClientUIPluginAPI::~IClientUIPluginAPI() = default;
IAbstractUI::~IAbstractUI() = default;
IAbstractWidget::~IAbstractWidget() = default;

} // namespace KQPluginAPI
