#pragma once

#include <QWidget>

/**
 * A widget that places its own children. Whoever holds it fixes its width, calls relayout(0, 0)
 * and finds the height set.
 */
class WidgetLayout : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Places the children from (x, y), in this widget's coordinates; 0 takes the own margin.
    virtual void relayout(int x, int y) = 0;
};
