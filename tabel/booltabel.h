#pragma once

#include "tabel/controltabel.h"

class QCheckBox;

/// Row with an on/off switch.
class BoolTabel : public ControlTabel
{
    Q_OBJECT

public:
    explicit BoolTabel(QWidget* parent = nullptr);

    void setValue(const QVariant& value, bool emitChange) override;
    QVariant value() const override;
    int rowKind() const override { return RowContract::Switch; }

private:
    QCheckBox* m_switch;
};
