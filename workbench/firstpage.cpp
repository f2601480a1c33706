#include "workbench/firstpage.h"

#include "workbench/examples.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

FirstPage::FirstPage(QWidget* over) : QScrollArea(over->window()), m_over(over), m_error(new QLabel)
{
    setObjectName(QStringLiteral("firstPage"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    auto* const page = new QWidget;
    page->setAutoFillBackground(true);
    page->setBackgroundRole(QPalette::Base);
    auto* const column = new QVBoxLayout(page);
    m_error->setObjectName(QStringLiteral("documentError"));
    m_error->setTextFormat(Qt::PlainText);
    m_error->setWordWrap(true);
    m_error->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_error->hide();
    column->addWidget(m_error);
    auto* const open = new QPushButton(tr("Open a template..."));
    open->setObjectName(QStringLiteral("openTemplate"));
    connect(open, &QPushButton::clicked, this, &FirstPage::sgnOpenTemplate);
    column->addWidget(open);
    addExamples(*column);
    column->addStretch();
    setWidget(page);
    for (QWidget* moved = over; moved && !moved->isWindow(); moved = moved->parentWidget())
        moved->installEventFilter(this);
}

void FirstPage::addExamples(QVBoxLayout& column)
{
    const QStringList names = Examples::names();
    if (names.isEmpty())
        return;
    column.addWidget(new QLabel(tr("Open an example")));
    for (const QString& name : names) {
        auto* const button = new QPushButton(Examples::title(name));
        button->setObjectName(name);
        connect(button, &QPushButton::clicked, this, [this, name] { emit sgnOpenExample(name); });
        column.addWidget(button);
    }
}

/// A path may have no place at which a label would break it.
void FirstPage::tell(const QString& error)
{
    QString text = error;
    text.replace(QLatin1Char('/'), QStringLiteral("/\u200b"));
    m_error->setText(error.isEmpty() ? QString() : tr("This cannot be used:\n%1").arg(text));
    m_error->setToolTip(error.toHtmlEscaped());
    m_error->setVisible(!error.isEmpty());
}

void FirstPage::place()
{
    if (m_over && parentWidget())
        setGeometry({m_over->mapTo(parentWidget(), QPoint()), m_over->size()});
}

void FirstPage::showEvent(QShowEvent* event)
{
    place();
    raise();
    QScrollArea::showEvent(event);
}

bool FirstPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        place();
    return QScrollArea::eventFilter(watched, event);
}
