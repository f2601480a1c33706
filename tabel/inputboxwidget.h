#pragma once

#include <QWidget>

class QLabel;
class RowEdit;

/// A line edit with a unit inside its right edge.
class InputBoxWidget : public QWidget
{
    Q_OBJECT

public:
    explicit InputBoxWidget(QWidget* parent = nullptr);

    /// Empty hides the unit.
    void setUnit(const QString& unit);
    RowEdit* lineEdit() const { return m_edit; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void place();

    RowEdit* m_edit;
    QLabel* m_unit;
};
