#include "tabel/actionbar.h"

QSize ActionBar::cellSize(const QList<QWidget*>& visible, int x) const
{
    const QSize least = WidgetTabel::cellSize(visible, x);
    QSize cell = least;
    for (const QWidget* button : visible)
        cell = cell.expandedTo(button->sizeHint());
    const int room = width() - x - paddingLeft();
    return {qMax(least.width(), qMin(cell.width(), room)), cell.height()};
}
