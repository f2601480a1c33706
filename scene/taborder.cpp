#include "scene/taborder.h"

#include <QWidget>

void TabOrder::fromTopToBottom(QWidget* panel)
{
    QWidget* previous = panel;
    // Qt lists children depth first, in the order in which they were added.
    const QList<QWidget*> widgets = panel->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (!(widget->focusPolicy() & Qt::TabFocus))
            continue;
        QWidget::setTabOrder(previous, widget);
        previous = widget;
    }
}
