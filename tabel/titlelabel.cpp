#include "tabel/titlelabel.h"

#include "tabel/plaintext.h"
#include "tabel/warningsign.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace
{

constexpr int kMeasureRoom = 2000; // QLabel's

static_assert(TitleLabel::kSignWidth > WarningSign::kExtent);

} // namespace

TitleLabel::TitleLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void TitleLabel::setTitle(const QString& text)
{
    setText(PlainText::line(text));
    m_isCut = this->text() != text;
    setToolTip(PlainText::toolTip(text));
}

bool TitleLabel::isElided() const
{
    const int room = contentsRect().width() - signWidth();
    return m_isCut || fontMetrics().elidedText(text(), Qt::ElideRight, room) != text();
}

void TitleLabel::setWarning(bool on)
{
    m_hasSign = on;
    update();
}

QSize TitleLabel::sizeHint() const
{
    ensurePolished();
    if (frameWidth() > 0)
        return QLabel::sizeHint();
    const QRect room(0, 0, kMeasureRoom, kMeasureRoom);
    const QSize size = fontMetrics().boundingRect(room, Qt::AlignLeft, text()).size();
    const QSize margins(2 * margin(), 2 * margin());
    return (size + margins).grownBy(contentsMargins()).expandedTo(minimumSize());
}

bool TitleLabel::event(QEvent* event)
{
    // A tip that repeats what can be read is only in the way.
    if (event->type() == QEvent::ToolTip && !isElided()) {
        event->ignore();
        return true;
    }
    return QLabel::event(event);
}

void TitleLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawFrame(&painter);
    QStyleOption option;
    option.initFrom(this);
    QRect area = contentsRect();
    if (m_hasSign) {
        const int top = area.top() + (area.height() - WarningSign::kExtent) / 2;
        WarningSign::paint(painter, {area.left(), top});
        area.setLeft(area.left() + signWidth());
    }
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, area.width());
    style()->drawItemText(&painter, area, int(alignment()), option.palette, isEnabled(), shown,
                          foregroundRole());
}
