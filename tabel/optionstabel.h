#pragma once

#include "tabel/controltabel.h"

/// Row of one box per option, in cells wide enough for the widest text where the row has room.
class OptionsTabel : public ControlTabel
{
    Q_OBJECT

public:
    explicit OptionsTabel(QWidget* parent = nullptr);

protected:
    QSize cellSize(const QList<QWidget*>& visible, int x) const override;
};
