#pragma once

#include "Protocol/ruletypes.h"

#include <QRadioButton>

struct EnumOption;

/// A radio button bound to one option; its dynamic property "value" holds the stored text.
class RadioButtonWidget : public QRadioButton
{
    Q_OBJECT

public:
    /// @p type is that of the attribute.
    RadioButtonWidget(const EnumOption& option, ValueType type, QWidget* parent = nullptr);

    /// As stored in the configuration.
    const QString& value() const { return m_value; }
    /// As it is compared with other texts of its type.
    const QString& comparable() const { return m_comparable; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_value;
    QString m_comparable;
};
