#pragma once

#include <QRadioButton>

struct EnumOption;

/// A radio button bound to one option; its dynamic property "value" holds the stored text.
class RadioButtonWidget : public QRadioButton
{
    Q_OBJECT

public:
    explicit RadioButtonWidget(const EnumOption& option, QWidget* parent = nullptr);

    /// As stored in the configuration.
    const QString& value() const { return m_value; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_value;
};
