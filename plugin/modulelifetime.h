#pragma once

namespace IntelligentRulesUI
{

/// Name of the module, its plug-in key, and the stem of its widgets' ids.
constexpr char kModuleName[] = "IntelligentRulesUI";
/// The right that an operator needs for the module.
constexpr char kRightName[] = "Default Right";

/// Starts GDI+, loads the module's translation, and tells readers of the screen of its widgets.
/// Each call starts GDI+ once more.
void startModule();

/// Lets go of shared painting resources and shuts GDI+ down.
void endModule();

} // namespace IntelligentRulesUI
