#include "scene/entryrows.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/validity.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/controltabel.h"
#include "tabel/layouthold.h"

namespace
{

void startWithDefault(ControlTabel& row, const RuleDataInfo& entry)
{
    const QVariant defaultValue = row.protocolItem()->defaultValue();
    if (defaultValue.isValid() && !entry.value(row.key()).isValid() && !row.isModified())
        row.setValue(defaultValue, false);
}

} // namespace

void EntryRows::load(ControlItemWidgetTabel& rows, const DataTemplate& dataTemplate,
                     const RuleDataInfo* entry)
{
    const LayoutHold hold(&rows);
    for (ControlTabel* row : rows.controls())
        row->loadValue(entry ? entry->value(row->key()) : QVariant());
    if (entry)
        showApplicable(rows, dataTemplate, *entry);
}

void EntryRows::showApplicable(ControlItemWidgetTabel& rows, const DataTemplate& dataTemplate,
                               const RuleDataInfo& entry)
{
    const LayoutHold hold(&rows);
    const auto hidden = Validity::hiddenItems(dataTemplate, entry);
    for (ControlTabel* row : rows.controls()) {
        const RuleProtocolItem* item = row->protocolItem();
        if (item && !item->validity().isEmpty())
            row->setVisible(!hidden.contains(item));
    }
}

void EntryRows::store(const ControlItemWidgetTabel& rows, const QString& key, RuleDataInfo& entry)
{
    const ControlTabel* row = rows.findControl(key);
    if (row && row->isModified())
        entry.setValue(key, row->value());
}

void EntryRows::updateDependents(const ControlItemWidgetTabel& rows,
                                 const DataTemplate& dataTemplate, const QString& changedKey,
                                 RuleDataInfo& entry)
{
    Validity::updateDependents(dataTemplate, entry, changedKey);
    for (const auto& item : dataTemplate.items()) {
        if (!Validity::dependsOn(*item, changedKey) || !entry.isValid(item->key()))
            continue;
        ControlTabel* row = rows.findControl(item->key());
        if (!row)
            continue;
        const QVariant before = entry.value(item->key());
        startWithDefault(*row, entry);
        store(rows, item->key(), entry);
        if (entry.value(item->key()) != before)
            updateDependents(rows, dataTemplate, item->key(), entry);
    }
}

void EntryRows::release(const ControlItemWidgetTabel& rows, const DataTemplate* dataTemplate)
{
    if (dataTemplate) {
        for (const auto& item : dataTemplate->items())
            item->setRow(nullptr);
    }
    for (ControlTabel* row : rows.controls())
        row->setProtocolItem(nullptr);
}
