#include "plugin/entrymenu.h"

#include "host/api/rowcontract.h"
#include "plugin/editkeys.h"
#include "plugin/entrytransfer.h"
#include "scene/basetabelscene.h"
#include "tabel/editmenu.h"
#include "tabel/plaintext.h"

namespace IntelligentRulesUI
{

EntryMenu::EntryMenu(const BaseTabelScene& panel, int dataId, const EntryTransfer& transfer,
                     QWidget* parent)
    : QMenu(parent), m_dataId(dataId)
{
    setObjectName(QString::fromLatin1(RowContract::kEntryMenu));
    setAttribute(Qt::WA_DeleteOnClose);
    setToolTipsVisible(true);
    const QString nameless = tr("There is no row for a name here.");
    add(EntryAction::Rename, tr("Rename"), {}, panel.canRename() ? QString() : nameless);
    add(EntryAction::Redraw, tr("Redraw"), {}, {});
    addSeparator();
    add(EntryAction::Duplicate, tr("Duplicate"), editKeyName(EditKey::Duplicate),
        transfer.whyNotDuplicated(panel, dataId));
    add(EntryAction::Copy, tr("Copy"), editKeyName(EditKey::Copy),
        transfer.whyNotCopied(panel, dataId));
    add(EntryAction::Paste, tr("Paste"), editKeyName(EditKey::Paste), transfer.whyNotPasted(panel));
    actions().last()->setObjectName(QString::fromLatin1(RowContract::kPaste));
    addSeparator();
    add(EntryAction::Delete, tr("Delete"), {}, {});
}

/// The key is shown, not bound: the window knows when it is for the window.
void EntryMenu::add(EntryAction action, const QString& text, const QString& keys,
                    const QString& whyNot)
{
    QAction* const added = addAction(
        keys.isEmpty() ? text : QStringLiteral("%1\t%2").arg(text, EditMenu::keyName(keys)));
    added->setEnabled(whyNot.isEmpty());
    added->setToolTip(PlainText::toolTip(whyNot));
    connect(added, &QAction::triggered, this, [this, action] { emit sgnChosen(action); });
}

} // namespace IntelligentRulesUI
