#include "plugin/savecheck.h"

#include "Protocol/entryname.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "scene/basetabelscene.h"

#include <algorithm>
#include <utility>

namespace IntelligentRulesUI
{

namespace
{

/// Whether an entry before it has the name of @p dataId.
bool hasNameOfAnother(const RuleData& rules, int dataId)
{
    const int position = rules.indexOf(dataId);
    if (position < 0 || !EntryName::isText(rules, position))
        return false;
    for (int i = 0; i < position; ++i) {
        if (EntryName::isText(rules, i) &&
            EntryName::written(rules, i) == EntryName::written(rules, position))
            return true;
    }
    return false;
}

bool isOfName(const CheckFault& fault)
{
    return fault.key == QLatin1String(EntryName::kRow);
}

} // namespace

std::optional<SaveCheck::Refusal> SaveCheck::refusal(const QList<BaseTabelScene*>& panels)
{
    for (BaseTabelScene* panel : panels) {
        const RuleData& data = *panel->ruleData();
        QString message;
        if (!data.checkData(message)) {
            CheckFault fault = data.firstFault().value_or(CheckFault());
            fault.message = message;
            return Refusal{panel, fault};
        }
        if (const auto fault = EntryName::duplicate(data))
            return Refusal{panel, *fault};
    }
    return std::nullopt;
}

std::optional<SaveCheck::Refusal> SaveCheck::selectionRefusal(const QList<BaseTabelScene*>& panels)
{
    const auto lacksSelection = [](const BaseTabelScene* panel) {
        const RuleData& rules = *panel->ruleData();
        const auto& entries = rules.getAllData();
        return rules.getSceneType() == SceneType::Rules &&
               std::none_of(entries.begin(), entries.end(),
                            [](const auto& entry) { return entry->isSelected(); });
    };
    const auto found = std::find_if(panels.begin(), panels.end(), lacksSelection);
    if (found == panels.end())
        return std::nullopt;
    return Refusal{*found, {tr("Please select at least one rule"), 0, {}, {}, 0}};
}

void SaveCheck::mark(const Refusal& refusal)
{
    const Refusal before = std::exchange(m_shown, refusal);
    if (before.panel && before.panel != m_shown.panel)
        before.panel->markFault(nullptr);
    refresh();
}

void SaveCheck::refresh()
{
    const RuleData* const data = m_shown.panel ? m_shown.panel->ruleData() : nullptr;
    if (!data)
        return forget();
    std::optional<CheckFault> left;
    if (!isOfName(m_shown.fault))
        left = data->leftOf(m_shown.fault);
    else if (hasNameOfAnother(*data, m_shown.fault.dataId))
        left = m_shown.fault;
    m_shown.panel->markFault(left ? &*left : nullptr);
    if (left)
        m_shown.fault = *left;
    else
        forget();
}

} // namespace IntelligentRulesUI
