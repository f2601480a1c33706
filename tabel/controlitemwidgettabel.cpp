#include "tabel/controlitemwidgettabel.h"

#include "tabel/controltabel.h"

#include <QPointer>
#include <algorithm>

ControlItemWidgetTabel::ControlItemWidgetTabel(QWidget* parent) : WidgetTabel(parent) {}

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
    QList<QPointer<ControlTabel>> rows;
    for (ControlTabel* row : qAsConst(m_rows))
        rows.append(row);
    for (const QPointer<ControlTabel>& row : qAsConst(rows)) {
        if (row)
            row->finishEdit();
    }
}

void ControlItemWidgetTabel::removeWidget(QWidget* widget)
{
    if (contains(widget))
        widget->disconnect(this);
    WidgetTabel::removeWidget(widget);
}

void ControlItemWidgetTabel::forgetWidget(const QObject* child)
{
    const auto isChild = [child](const ControlTabel* row) {
        return static_cast<const QObject*>(row) == child;
    };
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), isChild);
    if (row != m_rows.end())
        m_rows.erase(row);
    WidgetTabel::forgetWidget(child);
}
