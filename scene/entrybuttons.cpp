#include "scene/entrybuttons.h"

#include "Protocol/entryname.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawitem.h"
#include "tabel/drawitembutton.h"
#include "tabel/layoutpause.h"
#include "tabel/ruleitemwidgettabel.h"

namespace
{

void addEntry(RuleItemWidgetTabel& table, const RuleData& data, int position,
              const RuleProtocolItem* figureItem, bool hasCheckBox)
{
    const RuleDataInfo& entry = *data.getAllData()[static_cast<std::size_t>(position)];
    const DrawItem* figure =
        figureItem ? data.figuresOf(entry.id(), *figureItem).value(0) : nullptr;
    auto* button = new DrawItemButton(figure ? figure->itemId() : 0, entry.id(),
                                      figure ? figure->drawType() : BaseDrawType::None, &table);
    button->setText(EntryName::button(data, position));
    button->setEnabledState(entry.isEnabled());
    button->setVisible(true);
    table.addButton(button);
    button->setEnableCheckBoxVisible(hasCheckBox);
}

} // namespace

void EntryButtons::fillEntries(RuleItemWidgetTabel& table, const RuleData& data,
                               const RuleProtocolItem* figureItem, bool hasCheckBoxes)
{
    const LayoutPause pause(&table);
    table.deleteAll();
    for (int i = 0; i < data.getDataCount(); ++i)
        addEntry(table, data, i, figureItem, hasCheckBoxes);
    table.setCurrentButton(table.findDataButton(data.getSelectedDataId()), false);
    table.relayout(0, 0);
}

void EntryButtons::fillChildren(RuleItemWidgetTabel& table, const RuleData& data, int dataId,
                                const QList<RuleProtocolItem*>& items)
{
    const LayoutPause pause(&table);
    table.deleteAll();
    for (const RuleProtocolItem* item : items) {
        const auto figures = data.figuresOf(dataId, *item);
        for (const DrawItem* figure : figures)
            addChild(table, figure->label(), figure);
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
