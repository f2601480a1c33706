#include "tabel/optionstabel.h"

namespace
{

constexpr int kCellWidth = 70;
constexpr int kCellHeight = 30;
constexpr int kColumns = 5;

} // namespace

OptionsTabel::OptionsTabel(QWidget* parent) : ControlTabel(parent)
{
    setItemType(ItemSizeType::ItemFixSize);
    setFixCountLimit(1, kColumns);
}

void OptionsTabel::relayout(int x, int y)
{
    int widest = kCellWidth;
    for (const QWidget* box : getVisibleItems())
        widest = qMax(widest, box->sizeHint().width());
    const int room = width() - (x == 0 ? startX() : x) - paddingLeft();
    setItemSize(QSize(qMax(kCellWidth, qMin(widest, room)), kCellHeight));
    ControlTabel::relayout(x, y);
}
