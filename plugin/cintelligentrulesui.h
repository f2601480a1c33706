#pragma once

#include "host/api/iabstractui.h"

#include <memory>
#include <vector>

namespace CommonData
{
class CInterfaceSetManager;
}

namespace IntelligentRulesUI
{

class CIntelligentRulesWidget;

/// Factory of rules windows; owns every widget that it makes.
class CIntelligentRulesUI : public KQPluginAPI::IAbstractUI
{
public:
    explicit CIntelligentRulesUI(CommonData::CInterfaceSetManager* manager);
    ~CIntelligentRulesUI() override;

    KQPluginAPI::IAbstractWidget* CreateWidget() override;
    /// The first widget with that id; null when there is none.
    KQPluginAPI::IAbstractWidget* FindWidget(const std::string& id) override;

private:
    CommonData::CInterfaceSetManager* m_manager; ///< not owned
    std::vector<std::unique_ptr<CIntelligentRulesWidget>> m_widgets;
};

} // namespace IntelligentRulesUI
