#include "plugin/cintelligentrulesui.h"

#include "plugin/cintelligentruleswidget.h"

#include <algorithm>

namespace IntelligentRulesUI
{

CIntelligentRulesUI::CIntelligentRulesUI(CommonData::CInterfaceSetManager* manager)
    : m_manager(manager)
{
}

CIntelligentRulesUI::~CIntelligentRulesUI() = default;

KQPluginAPI::IAbstractWidget* CIntelligentRulesUI::CreateWidget()
{
    const auto count = static_cast<int>(m_widgets.size());
    m_widgets.push_back(std::make_unique<CIntelligentRulesWidget>(m_manager, count));
    return m_widgets.back().get();
}

KQPluginAPI::IAbstractWidget* CIntelligentRulesUI::FindWidget(const std::string& id)
{
    const auto found = std::find_if(m_widgets.begin(), m_widgets.end(),
                                    [&id](const auto& w) { return w->GetWidgetID() == id; });
    return found == m_widgets.end() ? nullptr : found->get();
}

} // namespace IntelligentRulesUI
