#pragma once

#include "tabel/optionstabel.h"

class CheckBoxWidget;

/// Row with a check box per option. Clicks never leave all boxes unchecked.
class CheckBoxTabel : public OptionsTabel
{
    Q_OBJECT

public:
    using OptionsTabel::OptionsTabel;

    void init() override;
    /// Checks the options listed and no others, without the rules of clicks.
    void setValue(const QVariant& value, bool emitChange) override;
    /// The stored values of the checked options; invalid when none is checked.
    QVariant value() const override;
    int rowKind() const override { return RowContract::Choices; }

private:
    void boxClicked(CheckBoxWidget* clicked);
    CheckBoxWidget* exclusiveBox() const;

    QList<CheckBoxWidget*> m_boxes;
};
