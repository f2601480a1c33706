#include "host/api/kqpushbutton.h"

#include <QHelpEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QToolTip>

namespace KQGUI
{

bool KQPushButton::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || shownText() == text())
        return QPushButton::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
}

void KQPushButton::paintEvent(QPaintEvent*)
{
    QStyleOptionButton look;
    initStyleOption(&look);
    look.text = shownText();
    QStylePainter(this).drawControl(QStyle::CE_PushButton, look);
}

QString KQPushButton::shownText() const
{
    QStyleOptionButton look;
    initStyleOption(&look);
    const QRect room = style()->subElementRect(QStyle::SE_PushButtonContents, &look, this);
    return fontMetrics().elidedText(text(), Qt::ElideRight, room.width(), Qt::TextShowMnemonic);
}

} // namespace KQGUI
