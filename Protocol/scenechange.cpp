#include "Protocol/scenechange.h"

#include "Protocol/ruledatainfo.h"
#include "Protocol/scenestate.h"

#include <QHash>

#include <algorithm>
#include <optional>

namespace
{

using Kind = SceneChange::Kind;

/// Entries and figures of a state by their ids.
struct Parts {
    explicit Parts(const SceneState& state)
    {
        for (const auto& entry : state.entries())
            entries.insert(entry->id(), entry.get());
        for (const auto& figure : state.figures())
            figures.insert(figure->itemId, figure.get());
    }

    QHash<int, const RuleDataInfo*> entries;
    QHash<int, const FigureState*> figures;
};

/// Entries that came or went.
std::optional<SceneChange> entryChange(const Parts& before, const SceneState& after)
{
    for (const auto& entry : after.entries()) {
        if (!before.entries.contains(entry->id()))
            return SceneChange{after.inHand() ? Kind::Begun : Kind::Other, entry->id(), 0};
    }
    if (static_cast<int>(after.entries().size()) == before.entries.size())
        return std::nullopt;
    for (auto entry = before.entries.cbegin(); entry != before.entries.cend(); ++entry) {
        if (!after.entry(entry.key()))
            return SceneChange{Kind::Other, entry.key(), 0};
    }
    return std::nullopt;
}

bool hasFigureLess(const SceneState& before, const SceneState& after)
{
    const Parts left(after);
    return std::any_of(
        before.figures().begin(), before.figures().end(),
        [&left](const auto& figure) { return !left.figures.contains(figure->itemId); });
}

/// Of a figure that both have.
SceneChange changeOf(const FigureState& was, const FigureState& is, const FigureState* inHand)
{
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
std::optional<SceneChange> figureChange(const SceneState& before, const Parts& parts,
                                        const SceneState& after)
{
    const FigureState* const inHand = before.inHand();
    std::optional<SceneChange> change;
    for (const auto& figure : after.figures()) {
        const FigureState* const was = parts.figures.value(figure->itemId);
        if (was && was != figure.get() && !was->isSameAs(*figure))
            change = changeOf(*was, *figure, inHand);
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
std::optional<SceneChange> valueChange(const Parts& before, const SceneState& after)
{
    for (const auto& entry : after.entries()) {
        const RuleDataInfo* const was = before.entries.value(entry->id());
        if (!was || was == entry.get() || *was == *entry)
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
    const Parts parts(before);
    if (const auto entries = entryChange(parts, after))
        return *entries;
    const auto figures = figureChange(before, parts, after);
    const auto values = valueChange(parts, after);
    if (figures && figures->kind != Kind::Picked)
        return *figures;
    if (values)
        return *values;
    return figures.value_or(SceneChange{Kind::Other, after.selectedDataId(), 0});
}
