#include "tabel/scrolling.h"

#include <QScrollArea>

namespace
{

constexpr int kMargin = 4;

} // namespace

void Scrolling::showWhole(const QWidget& widget)
{
    for (QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
        auto* const area = qobject_cast<QScrollArea*>(above);
        if (!area || !area->widget()->isAncestorOf(&widget))
            continue;
        const int top = widget.mapTo(area->widget(), QPoint()).y();
        area->ensureVisible(0, top + widget.height(), 0, kMargin);
        area->ensureVisible(0, top, 0, kMargin);
    }
}
