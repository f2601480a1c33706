#pragma once

#include <QMenu>

class BaseTabelScene;

namespace IntelligentRulesUI
{

class EntryTransfer;

/// What can be done with an entry.
enum class EntryAction { Rename, Redraw, Duplicate, Copy, Paste, Delete };

/// The context menu of an entry's button. What cannot be done is there all the same, disabled, and
/// its tool tip says why. It deletes itself when it is closed.
class EntryMenu : public QMenu
{
    Q_OBJECT
    Q_PROPERTY(int entryId READ dataId CONSTANT)

public:
    /// For the entry @p dataId of @p panel as it is now; neither panel nor @p transfer is kept.
    EntryMenu(const BaseTabelScene& panel, int dataId, const EntryTransfer& transfer,
              QWidget* parent);

    int dataId() const { return m_dataId; }

signals:
    void sgnChosen(IntelligentRulesUI::EntryAction action);

private:
    void add(EntryAction action, const QString& text, const QString& keys, const QString& whyNot);

    int m_dataId;
};

} // namespace IntelligentRulesUI

Q_DECLARE_METATYPE(IntelligentRulesUI::EntryAction)
