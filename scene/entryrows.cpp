#include "scene/entryrows.h"

#include "Protocol/datatemplate.h"
#include "Protocol/misfit.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/validity.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/controltabel.h"
#include "tabel/layoutpause.h"

#include <QMap>
#include <vector>

namespace
{

void startWithDefault(ControlTabel& row, const RuleDataInfo& entry)
{
    const QVariant defaultValue = row.protocolItem()->defaultValue();
    const bool isEmpty = !entry.value(row.key()).isValid() && !entry.asRead(row.key());
    if (defaultValue.isValid() && isEmpty && !row.isModified())
        row.setValue(defaultValue, false);
}

void storeRow(ControlTabel& row, const QString& key, RuleDataInfo& entry)
{
    if (!row.isModified())
        return;
    // The entry no longer has what was loaded: going back to it is a change, too.
    row.setModified();
    if (entry.asRead(key))
        row.setMark({});
    entry.setValue(key, row.value());
}

QMap<QString, ControlTabel*> rowsByKey(const ControlItemWidgetTabel& rows)
{
    QMap<QString, ControlTabel*> found;
    for (ControlTabel* row : rows.controls()) {
        if (!found.contains(row->key()))
            found.insert(row->key(), row);
    }
    return found;
}

/// Follows a changed value down the chains of what depends on it. These are as long as templates
/// make them, so it goes down them without recursion.
class DependentsUpdate
{
public:
    DependentsUpdate(const ControlItemWidgetTabel& rows, const DataTemplate& dataTemplate,
                     RuleDataInfo& entry)
        : m_template(dataTemplate),
          m_entry(entry),
          m_dependents(Validity::dependents(dataTemplate)),
          m_rows(rowsByKey(rows))
    {
    }

    void run(const QString& changedKey)
    {
        std::vector<Level> chain{enter(changedKey)};
        while (!chain.empty()) {
            Level& level = chain.back();
            if (level.next == level.items.size()) {
                chain.pop_back();
                continue;
            }
            const RuleProtocolItem& item = *level.items[level.next++];
            if (changes(item))
                chain.push_back(enter(item.key()));
        }
    }

private:
    struct Level {
        QVector<const RuleProtocolItem*> items;
        int next;
    };

    Level enter(const QString& key)
    {
        const QVector<const RuleProtocolItem*> items = m_dependents.value(key);
        Validity::update(m_template, m_entry, items);
        return {items, 0};
    }

    /// Stores the item's row if it applies; whether the entry has another value by that.
    bool changes(const RuleProtocolItem& item)
    {
        ControlTabel* row = m_entry.isValid(item.key()) ? m_rows.value(item.key()) : nullptr;
        if (!row)
            return false;
        const QVariant before = m_entry.value(item.key());
        startWithDefault(*row, m_entry);
        storeRow(*row, item.key(), m_entry);
        return m_entry.value(item.key()) != before;
    }

    const DataTemplate& m_template;
    RuleDataInfo& m_entry;
    const Validity::Dependents m_dependents;
    const QMap<QString, ControlTabel*> m_rows;
};

} // namespace

void EntryRows::load(ControlItemWidgetTabel& rows, const RuleData& data, const RuleDataInfo* entry)
{
    const LayoutPause pause(&rows);
    for (ControlTabel* row : rows.controls()) {
        if (entry && !row->protocolItem())
            continue;
        row->loadValue(entry ? entry->value(row->key()) : QVariant());
        const QString misfit = entry ? Misfit::explained(data, *entry, row->key()) : QString();
        if (row->isMarked() || !misfit.isEmpty())
            row->setMark(misfit);
    }
    if (entry)
        showApplicable(rows, *data.getTemplate(), *entry);
}

void EntryRows::showApplicable(ControlItemWidgetTabel& rows, const DataTemplate& dataTemplate,
                               const RuleDataInfo& entry)
{
    const LayoutPause pause(&rows);
    const auto hidden = Validity::hiddenItems(dataTemplate, entry);
    for (ControlTabel* row : rows.controls()) {
        const RuleProtocolItem* item = row->protocolItem();
        if (item && !item->validity().isEmpty())
            row->setVisible(!hidden.contains(item));
    }
}

void EntryRows::store(const ControlItemWidgetTabel& rows, const QString& key, RuleDataInfo& entry)
{
    ControlTabel* row = rows.findControl(key);
    if (row)
        storeRow(*row, key, entry);
}

void EntryRows::updateDependents(const ControlItemWidgetTabel& rows,
                                 const DataTemplate& dataTemplate, const QString& changedKey,
                                 RuleDataInfo& entry)
{
    DependentsUpdate(rows, dataTemplate, entry).run(changedKey);
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
