#include "Protocol/entryfigures.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "draw/drawscene.h"

EntryFigures::EntryFigures(const RuleData& data)
    : m_template(*data.getTemplate()), m_scene(*data.getDrawScene())
{
}

DrawItemRange EntryFigures::of(int dataId) const
{
    return m_scene.itemsOf(dataId);
}

EntryFigures::Figures EntryFigures::of(int dataId, const RuleProtocolItem& item) const
{
    Figures matching;
    for (const auto& [id, figure] : of(dataId)) {
        if (isFor(*figure, item))
            matching.append(figure);
    }
    return matching;
}

const DrawItem* EntryFigures::first(int dataId, const RuleProtocolItem& item) const
{
    for (const auto& [id, figure] : of(dataId)) {
        if (isFor(*figure, item))
            return figure;
    }
    return nullptr;
}

bool EntryFigures::isFor(const DrawItem& figure, const RuleProtocolItem& item) const
{
    return m_template.isFigureFor(figure, item);
}
