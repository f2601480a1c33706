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

QSize OptionsTabel::cellSize(const QList<QWidget*>& visible, int x) const
{
    int widest = kCellWidth;
    for (const QWidget* box : visible)
        widest = qMax(widest, box->sizeHint().width());
    const int room = width() - x - paddingLeft();
    return {qMax(kCellWidth, qMin(widest, room)), kCellHeight};
}
