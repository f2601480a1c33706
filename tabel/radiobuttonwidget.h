#pragma once

#include "Protocol/valuecompare.h"
#include "tabel/optionbox.h"

#include <QRadioButton>

/// The radio button of one option.
class RadioButtonWidget
    : public OptionBox<QRadioButton, QStyle::CE_RadioButton, QStyle::SE_RadioButtonContents>
{
    Q_OBJECT

public:
    /// @p type is that of the attribute.
    RadioButtonWidget(const EnumOption& option, ValueType type, QWidget* parent = nullptr)
        : OptionBox(option, parent), m_comparable(ComparableText::of(option.value, type))
    {
    }

    /// The value as it is compared with other texts of its type.
    const QString& comparable() const { return m_comparable; }

private:
    QString m_comparable;
};
