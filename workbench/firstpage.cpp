#include "workbench/firstpage.h"

#include "workbench/examples.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

/// As the rules window's skin has them: edges of 3:1, which no desktop's own buttons have.
QString sheet(bool isDark)
{
    return QStringLiteral(
               "#firstPage, #firstPage > QWidget > QWidget { background: %1; }"
               "QLabel { color: %2; }"
               "QPushButton { background: %1; color: %2; border: 1px solid %3; border-radius: 4px;"
               " padding: 5px 12px; }"
               "QPushButton:hover { background: %4; }"
               "QPushButton:focus { border: 2px solid %5; padding: 4px 11px; }"
               "QPushButton:pressed { background: %4; border-color: %5; }")
        .arg(isDark ? "#24282E" : "#FFFFFF", isDark ? "#E6E9ED" : "#303133",
             isDark ? "#828B98" : "#727A87", isDark ? "#363C45" : "#EEF1F6",
             isDark ? "#4DA3FF" : "#0064CC");
}

} // namespace

FirstPage::FirstPage(QWidget* over) : QScrollArea(over->window()), m_over(over), m_error(new QLabel)
{
    setObjectName(QStringLiteral("firstPage"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    auto* const page = new QWidget;
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
    m_isDark = isDark();
    setStyleSheet(sheet(m_isDark));
    QWidget* around = over;
    for (; !around->isWindow(); around = around->parentWidget())
        around->installEventFilter(this);
    around->installEventFilter(this);
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

/// Its own palette has the colours of the sheet, and does not follow.
bool FirstPage::isDark() const
{
    const QPalette palette = parentWidget() ? parentWidget()->palette() : QApplication::palette();
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

void FirstPage::follow()
{
    if (m_isDark == isDark())
        return;
    m_isDark = isDark();
    setStyleSheet(sheet(m_isDark));
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
    else if (event->type() == QEvent::PaletteChange ||
             event->type() == QEvent::ApplicationPaletteChange)
        follow();
    return QScrollArea::eventFilter(watched, event);
}
