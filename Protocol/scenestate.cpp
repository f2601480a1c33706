#include "Protocol/scenestate.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"

#include <QHash>

#include <algorithm>

namespace
{

bool isSame(const RuleDataInfo& a, const RuleDataInfo& b)
{
    return a == b;
}

bool isSame(const FigureState& a, const FigureState& b)
{
    return a.isSameAs(b) && a.figure.label() == b.figure.label();
}

int idOf(const RuleDataInfo& entry)
{
    return entry.id();
}

int idOf(const FigureState& figure)
{
    return figure.itemId;
}

/// Gives out what was there before for what is the same, so that it is kept once.
template<class Kept>
class Shared
{
public:
    explicit Shared(const std::vector<std::shared_ptr<const Kept>>& before)
    {
        m_before.reserve(static_cast<int>(before.size()));
        for (const auto& kept : before)
            m_before.insert(idOf(*kept), kept);
    }

    std::shared_ptr<const Kept> operator()(const Kept& now) const
    {
        const auto found = m_before.constFind(idOf(now));
        return found != m_before.cend() && isSame(**found, now) ? *found
                                                                : std::make_shared<Kept>(now);
    }

private:
    QHash<int, std::shared_ptr<const Kept>> m_before;
};

} // namespace

FigureState FigureState::of(const DrawItem& item)
{
    return {item.value(),
            item.templateKey(),
            item.forbidenAreaType(),
            item.itemId(),
            item.parent() ? item.parent()->itemId() : 0,
            item.dataId(),
            item.sourceIndex()};
}

std::unique_ptr<DrawItem> FigureState::make() const
{
    auto item = std::make_unique<DrawItem>(figure.kind());
    item->setItemId(itemId);
    item->setDataId(dataId);
    item->setTemplateKey(templateKey);
    item->setForbidenAreaType(forbidenAreaType);
    item->setSourceIndex(sourceIndex);
    if (item->figure())
        item->figure()->setFigure(figure);
    return item;
}

bool FigureState::isSameAs(const FigureState& other) const
{
    Figure relabelled = other.figure;
    relabelled.setLabel(figure.label());
    return figure == relabelled && templateKey == other.templateKey &&
           forbidenAreaType == other.forbidenAreaType && itemId == other.itemId &&
           parentId == other.parentId && dataId == other.dataId && sourceIndex == other.sourceIndex;
}

SceneState SceneState::of(const RuleData& data, const SceneState& before)
{
    SceneState state;
    const Shared<RuleDataInfo> sharedEntry(before.m_entries);
    for (const auto& entry : data.getAllData())
        state.m_entries.push_back(sharedEntry(*entry));
    const DrawScene& canvas = *data.getDrawScene();
    const Shared<FigureState> sharedFigure(before.m_figures);
    for (const DrawItem* item : canvas.getItemList(BaseDrawType::None, 0))
        state.m_figures.push_back(sharedFigure(FigureState::of(*item)));
    state.m_selectedDataId = data.getSelectedDataId();
    const DrawItem* selected = canvas.selectedItem(state.m_selectedDataId);
    state.m_selectedItemId = selected ? selected->itemId() : 0;
    return state;
}

bool SceneState::restore(RuleData& data) const
{
    const SceneState now = of(data, *this);
    RuleData::Entries entries;
    for (const Entry& entry : m_entries)
        entries.push_back(std::make_unique<RuleDataInfo>(*entry));
    data.setEntries(std::move(entries));
    DrawScene& canvas = *data.getDrawScene();
    QHash<int, bool> saved;
    for (const DrawItem* item : canvas.getItemList(BaseDrawType::None, 0))
        saved.insert(item->itemId(), item->isDrawOver());
    QHash<int, FigureState> kept;
    for (const auto& figure : now.m_figures)
        kept.insert(figure->itemId, *figure);
    canvas.clear();
    bool changes = now.m_figures.size() != m_figures.size();
    for (const auto& figure : m_figures) {
        const auto was = kept.constFind(figure->itemId);
        const bool isSame = was != kept.cend() && was->isSameAs(*figure);
        changes = changes || !isSame;
        const DrawItem* item = canvas.addItem(figure->make(), figure->parentId);
        if (item->figure())
            item->figure()->setDrawOver(isSame && saved.value(figure->itemId));
    }
    data.setSelectedDataId(m_selectedDataId);
    return changes;
}

bool SceneState::isSameAs(const SceneState& other) const
{
    return std::equal(m_entries.begin(), m_entries.end(), other.m_entries.begin(),
                      other.m_entries.end(),
                      [](const auto& a, const auto& b) { return a == b || *a == *b; }) &&
           std::equal(m_figures.begin(), m_figures.end(), other.m_figures.begin(),
                      other.m_figures.end(),
                      [](const auto& a, const auto& b) { return a == b || a->isSameAs(*b); });
}

SceneState::Entry SceneState::entry(int dataId) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [dataId](const Entry& entry) { return entry->id() == dataId; });
    return found == m_entries.end() ? nullptr : *found;
}

const FigureState* SceneState::figure(int itemId) const
{
    const auto found =
        std::find_if(m_figures.begin(), m_figures.end(),
                     [itemId](const auto& figure) { return figure->itemId == itemId; });
    return found == m_figures.end() ? nullptr : found->get();
}

const FigureState* SceneState::inHand() const
{
    const FigureState* const selected = figure(m_selectedItemId);
    return selected && !selected->figure.isFinished() ? selected : nullptr;
}

SceneState SceneState::withEntry(const Entry& entry) const
{
    SceneState state = *this;
    for (Entry& mine : state.m_entries) {
        if (entry && mine->id() == entry->id())
            mine = entry;
    }
    return state;
}

SceneState SceneState::withoutFigure(int itemId) const
{
    SceneState state = withNothingSelected();
    const auto isThat = [itemId](const auto& figure) { return figure->itemId == itemId; };
    state.m_figures.erase(std::remove_if(state.m_figures.begin(), state.m_figures.end(), isThat),
                          state.m_figures.end());
    return state;
}

SceneState SceneState::withNothingSelected() const
{
    SceneState state = *this;
    state.m_selectedItemId = 0;
    return state;
}
