#include "plugin/savecheck.h"

#include "Protocol/entryname.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "scene/basetabelscene.h"
#include "scene/rulescene.h"

#include <algorithm>
#include <set>
#include <utility>

namespace IntelligentRulesUI
{

namespace
{

using Names = std::set<QString>;

/// Adds the names of the rules up to one that has another one's, and returns its id; 0 for none.
int collectNames(const RuleData& rules, Names& names)
{
    if (rules.getSceneType() != SceneType::Rules)
        return 0;
    for (int i = 0; i < rules.getDataCount(); ++i) {
        if (EntryName::isText(rules, i) && !names.insert(EntryName::written(rules, i)).second)
            return rules.getAllData()[static_cast<std::size_t>(i)]->id();
    }
    return 0;
}

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
    return fault.key == QLatin1String(RuleScene::kNameRow);
}

} // namespace

std::optional<SaveCheck::Refusal> SaveCheck::refusal(const QList<BaseTabelScene*>& panels)
{
    Names names;
    for (BaseTabelScene* panel : panels) {
        const RuleData& data = *panel->ruleData();
        QString message;
        if (!data.checkData(message)) {
            CheckFault fault = data.firstFault().value_or(CheckFault());
            fault.message = message;
            return Refusal{panel, fault};
        }
        if (const int dataId = collectNames(data, names)) {
            return Refusal{panel,
                           {tr("Duplicate rule name exists"),
                            dataId,
                            QString::fromLatin1(RuleScene::kNameRow),
                            {},
                            0}};
        }
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
