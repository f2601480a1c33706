#pragma once

#include "tabel/controltabel.h"

class InputRangeEdit;

/// Row with a minimum and a maximum edit; its value is a QSize (minimum, maximum).
class InputRangeEditTabel : public ControlTabel
{
    Q_OBJECT

public:
    explicit InputRangeEditTabel(QWidget* parent = nullptr);

    void init() override;
    /// Takes a QSize and ignores anything else.
    void setValue(const QVariant& value, bool emitChange) override;
    QVariant value() const override;
    int rowKind() const override { return RowContract::Range; }
    void finishEdit() override;

protected:
    void showValue(const QVariant& value) override;

private:
    InputRangeEdit* m_edit;
};
