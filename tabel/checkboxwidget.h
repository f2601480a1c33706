#pragma once

#include "tabel/optionbox.h"

#include <QCheckBox>

/// The check box of one option.
class CheckBoxWidget : public OptionBox<QCheckBox, QStyle::CE_CheckBox, QStyle::SE_CheckBoxContents>
{
    Q_OBJECT

public:
    explicit CheckBoxWidget(const EnumOption& option, QWidget* parent = nullptr)
        : OptionBox(option, parent), m_exclusive(option.isAll)
    {
    }

    /// Whether checking it unchecks the other boxes of its row.
    bool isExclusive() const { return m_exclusive; }

private:
    bool m_exclusive;
};
