#pragma once

#include <QCheckBox>

struct EnumOption;

/// A check box bound to one option; its dynamic property "value" holds the stored text.
class CheckBoxWidget : public QCheckBox
{
    Q_OBJECT

public:
    explicit CheckBoxWidget(const EnumOption& option, QWidget* parent = nullptr);

    /// As stored in the configuration.
    const QString& value() const { return m_value; }
    /// Whether checking it unchecks the other boxes of its row.
    bool isExclusive() const { return m_exclusive; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_value;
    bool m_exclusive;
};
