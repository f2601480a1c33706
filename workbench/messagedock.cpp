#include "workbench/messagedock.h"

#include <QFontDatabase>
#include <QHeaderView>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QTreeWidget>

namespace
{

enum Column { TimeColumn, DirectionColumn, IdColumn, AddressColumn };
constexpr int kTextRole = Qt::UserRole;
// A long session keeps its newest messages only.
constexpr std::size_t kMaximumMessages = 1000;

} // namespace

MessageDock::MessageDock(QWidget* parent) : QDockWidget(tr("Messages"), parent)
{
    setObjectName(QStringLiteral("messageDock"));
}

void MessageDock::add(const MessageRecord& message)
{
    const Entry entry{QTime::currentTime(), message};
    if (m_list) {
        append(entry);
        m_list->scrollToBottom();
        return;
    }
    m_waiting.push_back(entry);
    if (m_waiting.size() > kMaximumMessages)
        m_waiting.pop_front();
}

void MessageDock::showEvent(QShowEvent* event)
{
    if (!m_list)
        makeList();
    QDockWidget::showEvent(event);
}

void MessageDock::makeList()
{
    m_list = new QTreeWidget;
    m_list->setHeaderLabels({tr("Time"), tr("Direction"), tr("Message"), tr("Addressed by")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->header()->setStretchLastSection(true);
    m_text = new QPlainTextEdit;
    m_text->setReadOnly(true);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setPlaceholderText(tr("Select a message to read its JSON"));
    auto* splitter = new QSplitter(Qt::Horizontal);
    splitter->addWidget(m_list);
    splitter->addWidget(m_text);
    setWidget(splitter);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &MessageDock::showSelected);
    for (const Entry& entry : m_waiting)
        append(entry);
    m_waiting.clear();
    m_list->scrollToBottom();
}

void MessageDock::append(const Entry& entry)
{
    const MessageRecord& message = entry.message;
    const bool toModule = message.direction == MessageRecord::Direction::ToModule;
    auto* item = new QTreeWidgetItem({entry.time.toString(QStringLiteral("HH:mm:ss")),
                                      toModule ? tr("host → module") : tr("module → host"),
                                      QString::number(message.id),
                                      MessageRecord::masked(message.p1).simplified()});
    item->setData(TimeColumn, kTextRole, MessageRecord::masked(message.p2));
    m_list->addTopLevelItem(item);
    if (m_list->topLevelItemCount() > int(kMaximumMessages))
        delete m_list->takeTopLevelItem(0);
}

void MessageDock::showSelected()
{
    const QList<QTreeWidgetItem*> selected = m_list->selectedItems();
    m_text->setPlainText(
        selected.isEmpty() ? QString() : selected.first()->data(TimeColumn, kTextRole).toString());
}
