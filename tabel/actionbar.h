#pragma once

#include "tabel/widgettabel.h"

/// A row of buttons that are as wide and as tall as the largest of their texts asks.
class ActionBar : public WidgetTabel
{
    Q_OBJECT

public:
    using WidgetTabel::WidgetTabel;

protected:
    /// At least the size that was set, and no wider than the bar.
    QSize cellSize(const QList<QWidget*>& visible, int x) const override;
};
