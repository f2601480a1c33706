#include "tabel/elision.h"

#include <QAbstractButton>
#include <QStyleOptionButton>

namespace
{

constexpr int kIconGap = 4; // QStyle's, between icon and text

} // namespace

void Elision::fit(const QAbstractButton& button, QStyle::SubElement contents,
                  QStyleOptionButton& look)
{
    int room = button.style()->subElementRect(contents, &look, &button).width();
    if (!look.icon.isNull())
        room -= look.iconSize.width() + kIconGap;
    look.text =
        button.fontMetrics().elidedText(look.text, Qt::ElideRight, room, Qt::TextShowMnemonic);
}
