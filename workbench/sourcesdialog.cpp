#include "workbench/sourcesdialog.h"

#include "host/video/maskedaddress.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

namespace
{

enum Column { ChannelColumn, AddressColumn, ColumnCount };
constexpr QSize kInitialSize(640, 360);

/// Shows its address masked; its editor gets the whole.
class AddressItem : public QTableWidgetItem
{
public:
    explicit AddressItem(const QString& address) : QTableWidgetItem(address, UserType) {}

    QVariant data(int role) const override
    {
        const QVariant content = QTableWidgetItem::data(role);
        return role == Qt::DisplayRole ? UICommonMdl::maskedAddress(content.toString()) : content;
    }
};

} // namespace

SourcesDialog::SourcesDialog(const SourceBook::Addresses& addresses, bool remembersLogins,
                             QWidget* parent)
    : QDialog(parent),
      m_table(new QTableWidget(0, ColumnCount)),
      m_remember(new QCheckBox(tr("Re&member user names and passwords"))),
      m_problem(new QLabel),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setObjectName(QStringLiteral("sourcesDialog"));
    setWindowTitle(tr("Sources"));
    m_table->setObjectName(QStringLiteral("sources"));
    m_table->setHorizontalHeaderLabels({tr("Channel"), tr("Address or file")});
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->verticalHeader()->hide();
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_remember->setObjectName(QStringLiteral("remember"));
    m_remember->setToolTip(
        tr("They are written into a file that only you can read. Otherwise they have to be typed "
           "again after the workbench was closed."));
    m_remember->setChecked(remembersLogins);
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    createButtons();
    for (auto i = addresses.begin(); i != addresses.end(); ++i)
        appendRow(i.key(), i.value());
    connect(m_table, &QTableWidget::itemChanged, this, &SourcesDialog::check);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(kInitialSize);
}

void SourcesDialog::createButtons()
{
    auto* const side = new QVBoxLayout;
    const auto add = [&](const char* name, const QString& text, void (SourcesDialog::*slot)()) {
        auto* const button = new QPushButton(text);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, slot);
        side->addWidget(button);
    };
    add("add", tr("&Add"), &SourcesDialog::addChannel);
    add("edit", tr("&Edit address"), &SourcesDialog::editAddress);
    add("file", tr("Choose &file..."), &SourcesDialog::chooseFile);
    add("remove", tr("&Remove"), &SourcesDialog::removeChannel);
    side->addStretch();
    auto* const upper = new QHBoxLayout;
    upper->addWidget(m_table);
    upper->addLayout(side);
    auto* const all = new QVBoxLayout(this);
    all->addLayout(upper);
    all->addWidget(m_remember);
    all->addWidget(m_problem);
    all->addWidget(m_buttons);
}

SourceBook::Addresses SourcesDialog::addresses() const
{
    SourceBook::Addresses addresses;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const QString address = textAt(row, AddressColumn);
        if (!address.isEmpty())
            addresses.insert(textAt(row, ChannelColumn), SourceBook::absolute(address));
    }
    return addresses;
}

bool SourcesDialog::remembersLogins() const
{
    return m_remember->isChecked();
}

void SourcesDialog::appendRow(const QString& channel, const QString& address)
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    m_table->setItem(row, ChannelColumn, new QTableWidgetItem(channel));
    m_table->setItem(row, AddressColumn, new AddressItem(address));
}

void SourcesDialog::addChannel()
{
    appendRow({}, {});
    m_table->setCurrentCell(m_table->rowCount() - 1, ChannelColumn);
    m_table->editItem(m_table->currentItem());
}

void SourcesDialog::removeChannel()
{
    m_table->removeRow(m_table->currentRow());
    check();
}

void SourcesDialog::editAddress()
{
    if (QTableWidgetItem* const item = m_table->item(m_table->currentRow(), AddressColumn)) {
        m_table->setCurrentItem(item);
        m_table->editItem(item);
    }
}

void SourcesDialog::chooseFile()
{
    const int row = m_table->currentRow();
    if (row < 0)
        return;
    const QString path = QFileDialog::getOpenFileName(this, tr("Picture or video"));
    if (!path.isEmpty())
        m_table->item(row, AddressColumn)->setText(path);
}

QString SourcesDialog::textAt(int row, int column) const
{
    const QTableWidgetItem* const item = m_table->item(row, column);
    return item ? item->data(Qt::EditRole).toString().trimmed() : QString();
}

/// Names rows by number: nothing that was typed into the wrong cell is repeated.
QString SourcesDialog::problem() const
{
    QStringList channels;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const QString channel = textAt(row, ChannelColumn);
        if (channel.isEmpty() != textAt(row, AddressColumn).isEmpty())
            return tr("Row %1 needs a channel and an address.").arg(row + 1);
        if (!channel.isEmpty() && channels.contains(channel))
            return tr("Row %1 has the channel of another row.").arg(row + 1);
        channels.append(channel);
    }
    return {};
}

void SourcesDialog::check()
{
    const QString text = problem();
    m_problem->setText(text);
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(text.isEmpty());
}
