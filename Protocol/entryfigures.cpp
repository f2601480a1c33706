#include "Protocol/entryfigures.h"

#include "Protocol/datatemplate.h"
#include "draw/drawscene.h"

EntryFigures::Figures EntryFigures::of(int dataId) const
{
    return m_scene.getItemListByDataId(dataId);
}

EntryFigures::Figures EntryFigures::of(int dataId, const RuleProtocolItem& item) const
{
    Figures matching;
    for (DrawItem* figure : of(dataId)) {
        if (m_template.isFigureFor(*figure, item))
            matching.append(figure);
    }
    return matching;
}

DrawItem* EntryFigures::first(int dataId, const RuleProtocolItem& item) const
{
    for (DrawItem* figure : of(dataId)) {
        if (m_template.isFigureFor(*figure, item))
            return figure;
    }
    return nullptr;
}
