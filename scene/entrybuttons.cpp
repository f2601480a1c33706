#include "scene/entrybuttons.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entryname.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawitem.h"
#include "tabel/drawitembutton.h"
#include "tabel/layouthold.h"
#include "tabel/ruleitemwidgettabel.h"

namespace
{

void addEntry(RuleItemWidgetTabel& table, const RuleData& data, int position,
              const EntryButtons::Options& options)
{
    const RuleDataInfo& entry = *data.getAllData()[static_cast<std::size_t>(position)];
    const DrawItem* figure = EntryButtons::labelFigures(data, position, options.figureItems);
    auto* button = new DrawItemButton(figure ? figure->itemId() : 0, entry.id(),
                                      figure ? figure->drawType() : BaseDrawType::None, &table);
    button->setText(EntryName::button(data, position));
    button->setEnabledState(entry.isEnabled());
    button->setVisible(true);
    table.addButton(button);
    button->setEnableCheckBoxVisible(options.enableCheckBoxes);
}

} // namespace

void EntryButtons::fillEntries(RuleItemWidgetTabel& table, const RuleData& data,
                               const Options& options)
{
    const LayoutHold hold(&table);
    table.deleteAll();
    for (int i = 0; i < data.getDataCount(); ++i)
        addEntry(table, data, i, options);
    table.setCurrentButton(table.findDataButton(data.getSelectedDataId()), false);
    table.relayout(0, 0);
}

DrawItem* EntryButtons::labelFigures(const RuleData& data, int position,
                                     const QList<RuleProtocolItem*>& figureItems)
{
    const int dataId = data.getAllData()[static_cast<std::size_t>(position)]->id();
    const QString text = EntryName::button(data, position);
    DrawItem* first = nullptr;
    for (const RuleProtocolItem* item : figureItems) {
        DrawItem* figure = data.figuresOf(dataId, *item).value(0);
        if (!figure)
            continue;
        const bool several = item->countRange().max >= 2;
        figure->setLabel(several ? text + QString::number(position + 1) : text);
        if (!first)
            first = figure;
    }
    return first;
}

void EntryButtons::fillChildren(RuleItemWidgetTabel& table, const RuleData& data, int dataId,
                                const QList<BaseDrawType>& types)
{
    const LayoutHold hold(&table);
    table.deleteAll();
    const QList<RuleProtocolItem*> items = data.getTemplate()->figureItems();
    for (const RuleProtocolItem* item : items) {
        if (!types.contains(item->drawType()))
            continue;
        int number = 0;
        const auto figures = data.figuresOf(dataId, *item);
        for (DrawItem* figure : figures) {
            const QString label = EntryName::child(*item, ++number);
            figure->setLabel(label);
            addChild(table, label, figure);
        }
    }
    table.relayout(0, 0);
}

DrawItemButton* EntryButtons::addChild(RuleItemWidgetTabel& table, const QString& label,
                                       const DrawItem* item)
{
    if (!item)
        return nullptr;
    auto* button = new DrawItemButton(item->itemId(), item->dataId(), item->drawType(), &table);
    button->setText(label);
    button->setVisible(true);
    table.addButton(button);
    return button;
}
