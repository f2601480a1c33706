#pragma once

/// What readers of the screen are told of the module's widgets that are no standard controls, or
/// act otherwise than those do.
namespace IntelligentRulesUI::Accessibility
{

/// From now on each such widget tells its role, state and action. Once more does nothing.
void start();
/// Has to be called before the module is unloaded.
void end();

} // namespace IntelligentRulesUI::Accessibility
