#include "Protocol/scenechange.h"

#include "Protocol/ruledatainfo.h"
#include "Protocol/scenestate.h"

#include <algorithm>
#include <optional>

namespace
{

using Kind = SceneChange::Kind;

/// Entries that came or went.
std::optional<SceneChange> entryChange(const SceneState& before, const SceneState& after)
{
    for (const auto& entry : after.entries()) {
        if (!before.entry(entry->id()))
            return SceneChange{after.inHand() ? Kind::Begun : Kind::Other, entry->id(), 0};
    }
    if (after.entries().size() < before.entries().size())
        return SceneChange{Kind::Other, 0, 0};
    return std::nullopt;
}

bool hasFigureLess(const SceneState& before, const SceneState& after)
{
    return std::any_of(before.figures().begin(), before.figures().end(),
                       [&](const auto& figure) { return !after.figure(figure->itemId); });
}

/// Of a figure that both have.
SceneChange changeOf(const FigureState& was, const FigureState& is, const SceneState& before)
{
    const FigureState* const inHand = before.inHand();
    if (inHand && inHand->itemId == is.itemId)
        return {Kind::Drawn, is.dataId, is.itemId};
    const bool isCleared = is.isEmpty() && !was.isEmpty();
    return {isCleared ? Kind::Begun : Kind::Other, is.dataId, is.itemId};
}

SceneChange startOf(const FigureState& figure)
{
    if (!figure.isEmpty())
        return {Kind::Other, figure.dataId, figure.itemId};
    return {figure.parentId == 0 ? Kind::Picked : Kind::Begun, figure.dataId, figure.itemId};
}

/// Figures that came, went or changed. What was drawn goes before what it led to.
std::optional<SceneChange> figureChange(const SceneState& before, const SceneState& after)
{
    std::optional<SceneChange> change;
    for (const auto& figure : after.figures()) {
        const FigureState* const was = before.figure(figure->itemId);
        if (was && !was->isSameAs(*figure))
            change = changeOf(*was, *figure, before);
        else if (!was && !change)
            change = startOf(*figure);
        if (change && was)
            break;
    }
    if (!hasFigureLess(before, after))
        return change;
    const bool isRedrawn = change && after.inHand();
    return SceneChange{isRedrawn ? Kind::Begun : Kind::Other, after.selectedDataId(),
                       isRedrawn ? change->itemId : 0};
}

/// Of values of entries that both have.
std::optional<SceneChange> valueChange(const SceneState& before, const SceneState& after)
{
    for (const auto& entry : after.entries()) {
        const SceneState::Entry was = before.entry(entry->id());
        if (!was || *was == *entry)
            continue;
        RuleDataInfo unnamed = *entry;
        if (was->name().isEmpty())
            unnamed.setName(was->name());
        return SceneChange{unnamed == *was ? Kind::Picked : Kind::Attribute, entry->id(), 0};
    }
    return std::nullopt;
}

} // namespace

SceneChange SceneChange::between(const SceneState& before, const SceneState& after)
{
    if (before.isSameAs(after))
        return {};
    if (const auto entries = entryChange(before, after))
        return *entries;
    const auto figures = figureChange(before, after);
    const auto values = valueChange(before, after);
    if (figures && figures->kind != Kind::Picked)
        return *figures;
    if (values)
        return *values;
    return figures.value_or(SceneChange{Kind::Other, after.selectedDataId(), 0});
}
