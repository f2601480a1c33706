#include "workbench/messagedock.h"

#include "workbench/maskedjson.h"
#include "workbench/messagerecord.h"

#include <QFontDatabase>
#include <QHeaderView>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QTime>
#include <QTreeWidget>

namespace
{

enum Column { TimeColumn, DirectionColumn, IdColumn, AddressColumn };
constexpr int kTextRole = Qt::UserRole;
// A long session keeps its newest messages only.
constexpr int kMaximumMessages = 1000;

} // namespace

MessageDock::MessageDock(QWidget* parent)
    : QDockWidget(tr("Messages"), parent), m_list(new QTreeWidget), m_text(new QPlainTextEdit)
{
    setObjectName(QStringLiteral("messageDock"));
    m_list->setHeaderLabels({tr("Time"), tr("Direction"), tr("Message"), tr("Addressed by")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->header()->setStretchLastSection(true);
    m_text->setReadOnly(true);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setPlaceholderText(tr("Select a message to read its JSON"));
    auto* splitter = new QSplitter(Qt::Horizontal);
    splitter->addWidget(m_list);
    splitter->addWidget(m_text);
    setWidget(splitter);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &MessageDock::showSelected);
}

void MessageDock::add(const MessageRecord& message)
{
    const bool toModule = message.direction == MessageRecord::Direction::ToModule;
    auto* item = new QTreeWidgetItem({QTime::currentTime().toString(QStringLiteral("HH:mm:ss")),
                                      toModule ? tr("host → module") : tr("module → host"),
                                      QString::number(message.id),
                                      MaskedJson::text(message.p1).simplified()});
    item->setData(TimeColumn, kTextRole, MaskedJson::text(message.p2));
    m_list->addTopLevelItem(item);
    if (m_list->topLevelItemCount() > kMaximumMessages)
        delete m_list->takeTopLevelItem(0);
    m_list->scrollToItem(item);
}

void MessageDock::showSelected()
{
    const QList<QTreeWidgetItem*> selected = m_list->selectedItems();
    m_text->setPlainText(
        selected.isEmpty() ? QString() : selected.first()->data(TimeColumn, kTextRole).toString());
}
