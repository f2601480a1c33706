#pragma once

#include "tabel/widgettabel.h"

class DrawItemButton;
class QAbstractButton;
class QButtonGroup;

/// The table of a scene's figure buttons, one of which is current.
class RuleItemWidgetTabel : public WidgetTabel
{
    Q_OBJECT

public:
    explicit RuleItemWidgetTabel(QWidget* parent = nullptr);

    /// Appends @p button, enabled as the table is, without laying out: tables are refilled in
    /// one go.
    void addButton(DrawItemButton* button);
    const QList<DrawItemButton*>& buttons() const { return m_buttons; }

    /// Null while none is current.
    DrawItemButton* currentButton() const { return m_current; }
    /// Checks @p button alone and makes it current, then announces it if @p announce. Null only
    /// clears the current button and leaves the checked states as they are.
    void setCurrentButton(DrawItemButton* button, bool announce);
    /// The first button with that item id; null when there is none.
    DrawItemButton* findButton(int id) const;
    /// The first button of that data entry; null when there is none.
    DrawItemButton* findDataButton(int dataId) const;
    /// The button under the pointer, or the one with the keyboard's focus; null for none.
    DrawItemButton* pointedButton() const;

    void removeWidget(QWidget* widget) override;

signals:
    /// Another button, or the same one anew, was made current.
    void sgnCheckBtnChanged();
    /// A button was pressed; it is current by then.
    void sgnBtnClicked(int id);
    /// The enable check box of an entry's button was clicked.
    void sgnEnableChanged(int dataId, bool on);
    /// The operator asks what can be done with an entry, at that place of the screen.
    void sgnMenuWanted(int dataId, const QPoint& place);
    /// pointedButton() may be another one.
    void sgnPointed();

protected:
    void forgetWidget(const QObject* child) override;

private:
    void pressed(DrawItemButton* button);
    void toggled(QAbstractButton* button, bool on);

    QList<DrawItemButton*> m_buttons;
    QList<QAbstractButton*> m_checked; ///< those of them that are checked
    QButtonGroup* m_group; ///< without one, Qt looks for others in all of the table's children
    DrawItemButton* m_current = nullptr;
};
