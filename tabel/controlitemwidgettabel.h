#pragma once

#include "tabel/widgettabel.h"

class ControlTabel;

/// The container of a panel's attribute rows; finds, sets and reads them by key.
class ControlItemWidgetTabel : public WidgetTabel
{
    Q_OBJECT

public:
    using WidgetTabel::WidgetTabel;

    /// Appends @p row, enabled as the container is, and relays its changes.
    void addControl(ControlTabel* row, bool relayoutNow);
    const QList<ControlTabel*>& controls() const { return m_rows; }
    /// The first row of that key; null when there is none.
    ControlTabel* findControl(const QString& key) const;
    /// Unannounced; false when no row has that key.
    bool setControlValue(const QString& key, const QVariant& value);
    /// False, with @p value untouched, when no row has that key.
    bool getControlValue(const QString& key, QVariant& value) const;

    /// Ends the edits in progress: accepted text is announced, refused text is dropped.
    void finishEdits();

signals:
    /// The operator changed the row of that key.
    void sgnValueChanged(const QString& key);

protected:
    void forgetWidget(const QObject* child) override;

private:
    QList<ControlTabel*> m_rows;
};
