#include "Protocol/figurelabels.h"

#include "Protocol/entryname.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawitem.h"

void FigureLabels::update(const RuleData& data, const RuleProtocolItem* item, int position)
{
    const int dataId = data.getAllData()[static_cast<std::size_t>(position)]->id();
    DrawItem* const figure = item ? data.figures().first(dataId, *item) : nullptr;
    if (!figure)
        return;
    const QString text = EntryName::button(data, position);
    const bool several = item->countRange().max >= 2;
    figure->setLabel(several ? text + QString::number(position + 1) : text);
}

void FigureLabels::update(const RuleData& data, const RuleProtocolItem* item)
{
    for (int i = 0; i < data.getDataCount(); ++i)
        update(data, item, i);
}

void FigureLabels::number(const RuleData& data, int dataId, const RuleProtocolItem& item)
{
    int number = 0;
    const auto figures = data.figuresOf(dataId, item);
    for (DrawItem* figure : figures)
        figure->setLabel(EntryName::child(item, ++number));
}
