#include "workbench/troublelabel.h"

#include <QPainter>

TroubleLabel::TroubleLabel(QWidget* parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("trouble"));
    setTextFormat(Qt::PlainText);
    setMinimumWidth(1);
    QFont font = this->font();
    font.setBold(true);
    setFont(font);
    hide();
}

void TroubleLabel::tell(Trouble subject, const QString& line)
{
    if (line.isEmpty())
        m_lines.remove(subject);
    else
        m_lines.insert(subject, line);
    const QString text = lines().join(QLatin1Char(' '));
    setText(text);
    setToolTip(text.toHtmlEscaped());
    setVisible(!text.isEmpty());
}

void TroubleLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawText(contentsRect(), int(alignment()),
                     fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()));
}
