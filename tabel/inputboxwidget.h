#pragma once

#include <QWidget>

class RowEdit;
class TitleLabel;

/// A line edit with a unit inside its right edge, which is elided where it would leave no room for
/// the number.
class InputBoxWidget : public QWidget
{
    Q_OBJECT

public:
    explicit InputBoxWidget(QWidget* parent = nullptr);

    /// Empty hides the unit.
    void setUnit(const QString& unit);
    RowEdit* lineEdit() const { return m_edit; }

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void place();

    RowEdit* m_edit;
    TitleLabel* m_unit;
};
