#include "tabel/controlitemwidgettabel.h"

#include "tabel/controltabel.h"

#include <QPointer>
#include <QVector>
#include <algorithm>

void ControlItemWidgetTabel::addControl(ControlTabel* row, bool relayoutNow)
{
    if (!row || contains(row))
        return;
    m_rows.append(row);
    row->setEnabled(getControlEnable());
    connect(row, &ControlTabel::sgnControlValueChange, this,
            &ControlItemWidgetTabel::sgnValueChanged);
    addWidgetLayout(row, relayoutNow);
}

ControlTabel* ControlItemWidgetTabel::findControl(const QString& key) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [&key](const ControlTabel* row) { return row->key() == key; });
    return found == m_rows.end() ? nullptr : *found;
}

bool ControlItemWidgetTabel::setControlValue(const QString& key, const QVariant& value)
{
    ControlTabel* row = findControl(key);
    if (row)
        row->setValue(value, false);
    return row != nullptr;
}

bool ControlItemWidgetTabel::getControlValue(const QString& key, QVariant& value) const
{
    const ControlTabel* row = findControl(key);
    if (row)
        value = row->value();
    return row != nullptr;
}

void ControlItemWidgetTabel::finishEdits()
{
    // What is announced may change the rows.
    const QVector<QPointer<ControlTabel>> rows(m_rows.cbegin(), m_rows.cend());
    for (const QPointer<ControlTabel>& row : rows) {
        if (row)
            row->finishEdit();
    }
}

void ControlItemWidgetTabel::forgetWidget(const QObject* child)
{
    forgetIn(m_rows, child);
    WidgetTabel::forgetWidget(child);
}
