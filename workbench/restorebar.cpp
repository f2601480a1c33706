#include "workbench/restorebar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

RestoreBar::RestoreBar(QWidget* over)
    : QFrame(over->window()), m_over(over), m_text(new QLabel(this))
{
    setObjectName(QStringLiteral("restoreBar"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    m_text->setForegroundRole(QPalette::ToolTipText);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    auto* const restore = new QPushButton(tr("Restore"), this);
    auto* const discard = new QPushButton(tr("Discard"), this);
    restore->setObjectName(QStringLiteral("restore"));
    discard->setObjectName(QStringLiteral("discard"));
    auto* const row = new QHBoxLayout(this);
    row->addWidget(m_text, 1);
    row->addWidget(restore);
    row->addWidget(discard);
    connect(restore, &QPushButton::clicked, this, &RestoreBar::sgnRestore);
    connect(discard, &QPushButton::clicked, this, &RestoreBar::sgnDiscard);
    m_over->installEventFilter(this);
    hide();
}

void RestoreBar::ask(const QString& text)
{
    m_text->setText(text);
    place();
    show();
    raise();
}

void RestoreBar::place()
{
    const QPoint corner = m_over->mapTo(m_over->window(), QPoint());
    const int width = m_over->width();
    setGeometry(QRect(corner, QSize(width, heightForWidth(width))));
}

bool RestoreBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        place();
    return QFrame::eventFilter(watched, event);
}
