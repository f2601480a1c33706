#include "Protocol/entryfigures.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"

EntryFigures::EntryFigures(const RuleData& data) : m_template(*data.getTemplate())
{
    const auto items = data.getDrawScene()->getItemList(BaseDrawType::None, 0);
    for (const DrawItem* item : items)
        m_figures[item->dataId()].append(item);
}

EntryFigures::Figures EntryFigures::of(int dataId, const RuleProtocolItem& item) const
{
    Figures matching;
    const auto found = m_figures.constFind(dataId);
    if (found == m_figures.constEnd())
        return matching;
    for (const DrawItem* figure : *found) {
        if (m_template.isFigureFor(*figure, item))
            matching.append(figure);
    }
    return matching;
}

const DrawItem* EntryFigures::first(int dataId, const RuleProtocolItem& item) const
{
    const auto found = m_figures.constFind(dataId);
    if (found == m_figures.constEnd())
        return nullptr;
    for (const DrawItem* figure : *found) {
        if (m_template.isFigureFor(*figure, item))
            return figure;
    }
    return nullptr;
}
