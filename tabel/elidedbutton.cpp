#include "tabel/elidedbutton.h"

#include "tabel/elision.h"

#include <QStyleOptionButton>
#include <QStylePainter>

void ElidedButton::paintEvent(QPaintEvent*)
{
    QStyleOptionButton look;
    initStyleOption(&look);
    Elision::fit(*this, QStyle::SE_PushButtonContents, look);
    QStylePainter(this).drawControl(QStyle::CE_PushButton, look);
}
