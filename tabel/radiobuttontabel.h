#pragma once

#include "tabel/optionstabel.h"

class QAbstractButton;
class QButtonGroup;

/// Row with a radio button per option.
class RadioButtonTabel : public OptionsTabel
{
    Q_OBJECT

public:
    explicit RadioButtonTabel(QWidget* parent = nullptr);

    void init() override;
    /// Checks the first option of that value, unannounced. A value that matches none leaves the
    /// selection, and only that is announced if @p emitChange.
    void setValue(const QVariant& value, bool emitChange) override;
    /// The checked option's stored value, an int for int items; invalid when none is checked.
    QVariant value() const override;
    int rowKind() const override { return RowContract::Choice; }
    QVariant heldValue() const override;

protected:
    void showValue(const QVariant& value) override;

private slots:
    void sltBtnClicked(QAbstractButton* button);

private:
    void makeGroup();
    QAbstractButton* findButton(const QVariant& value) const;

    QButtonGroup* m_group = nullptr;
};
