#include "fuzz/client/clientplace.h"

#include <QLineEdit>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

namespace
{

QWidget* makeContainer(ClientPlace::Kind kind)
{
    switch (kind) {
    case ClientPlace::Tabs:
        return new QTabWidget;
    case ClientPlace::Stack:
        return new QStackedWidget;
    case ClientPlace::Splitter:
        return new QSplitter;
    default:
        break;
    }
    auto* const column = new QWidget;
    new QVBoxLayout(column);
    return column;
}

} // namespace

ClientPlace::ClientPlace(Kind kind)
    : m_kind(kind), m_edit(new QLineEdit), m_container(makeContainer(kind))
{
    auto* const all = new QVBoxLayout(this);
    all->addWidget(m_edit);
    all->addWidget(m_container);
    take(new QWidget);
}

void ClientPlace::take(QWidget* window)
{
    if (m_kind == Tabs)
        static_cast<QTabWidget*>(m_container)->addTab(window, QStringLiteral("page"));
    else if (m_kind == Stack)
        static_cast<QStackedWidget*>(m_container)->addWidget(window);
    else if (m_kind == Splitter)
        static_cast<QSplitter*>(m_container)->addWidget(window);
    else
        m_container->layout()->addWidget(window);
}

void ClientPlace::turnColumn(int number)
{
    const QLayout& pages = *m_container->layout();
    for (int i = 0; i < pages.count(); ++i)
        pages.itemAt(i)->widget()->setVisible(i == number % pages.count());
}

void ClientPlace::turn(int number)
{
    if (auto* const tabs = qobject_cast<QTabWidget*>(m_container))
        tabs->setCurrentIndex(number % qMax(1, tabs->count()));
    else if (auto* const stack = qobject_cast<QStackedWidget*>(m_container))
        stack->setCurrentIndex(number % qMax(1, stack->count()));
    else if (m_kind == Column)
        turnColumn(number);
}
