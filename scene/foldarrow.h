#pragma once

#include <QWidget>

/// Small arrow in a section's title bar: points down while the section is open, right while it is
/// folded. Painted in the widget's text colour.
class FoldArrow : public QWidget
{
    Q_OBJECT

public:
    explicit FoldArrow(QWidget* parent = nullptr);

    void setFolded(bool folded);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_folded = false;
};
