#pragma once

namespace IntelligentRulesUI
{

/// Style sheet of the Save button: it looks the same under every skin.
constexpr char kSaveButtonStyle[] =
    "\t\t\t\tKQGUI--KQPushButton{width:70px;height:28px;background-color: #ffffff;"
    "border: 1px solid #e1e3e6;border-radius: 4px;color: #3c3f42;outline: none;}"
    "\t\t\t\tKQGUI--KQPushButton:focus{width:70px;height:28px;background-color: #ffffff;"
    "border: 1px solid #e1e3e6;border-radius: 4px;color: #3c3f42;outline: none;}"
    "\t\t\t\tKQGUI--KQPushButton:hover{background-color: #ffffff;border: 1px solid #82aaff;"
    "border-radius: 4px;color: #82aaff;outline: none;}"
    "\t\t\t\tKQGUI--KQPushButton:disabled{background-color: rgba(181,183,185,0.2);"
    "border:1px solid #b5b7b9;border-radius: 4px;color: #b5b7b9;outline: none;}"
    "\t\t\t\tKQGUI--KQPushButton:pressed{background-color: #ffffff;border: 1px solid #325ace;"
    "border-radius: 4px;color: #325ace;outline: none;}";

} // namespace IntelligentRulesUI
