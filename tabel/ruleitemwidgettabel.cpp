#include "tabel/ruleitemwidgettabel.h"

#include "tabel/drawitembutton.h"

#include <QButtonGroup>
#include <QPointer>
#include <algorithm>

RuleItemWidgetTabel::RuleItemWidgetTabel(QWidget* parent)
    : WidgetTabel(parent), m_group(new QButtonGroup(this))
{
    m_group->setExclusive(false);
    connect(m_group, QOverload<QAbstractButton*, bool>::of(&QButtonGroup::buttonToggled), this,
            &RuleItemWidgetTabel::toggled);
    setPaddingLeft(5);
    setPaddingTop(5);
    setItemType(ItemSizeType::ItemFixSize);
    setFixCountLimit(1, 5);
    setItemSize(QSize(80, 24));
}

void RuleItemWidgetTabel::addButton(DrawItemButton* button)
{
    if (!button || contains(button))
        return;
    m_buttons.append(button);
    button->setEnabled(getControlEnable());
    m_group->addButton(button, 0);
    toggled(button, button->isChecked());
    connect(button, &DrawItemButton::clicked, this, [this, button] { pressed(button); });
    connect(button, &DrawItemButton::sgnEnableChanged, this,
            &RuleItemWidgetTabel::sgnEnableChanged);
    connect(button, &DrawItemButton::sgnMenuWanted, this, &RuleItemWidgetTabel::sgnMenuWanted);
    connect(button, &DrawItemButton::sgnPointed, this, &RuleItemWidgetTabel::sgnPointed);
    addWidget(button, false);
}

void RuleItemWidgetTabel::pressed(DrawItemButton* button)
{
    // Whoever listens may rebuild the table, or delete it.
    const QPointer<RuleItemWidgetTabel> self(this);
    const int id = button->id();
    setCurrentButton(button, true);
    if (self)
        emit sgnBtnClicked(id);
}

void RuleItemWidgetTabel::toggled(QAbstractButton* button, bool on)
{
    m_checked.removeOne(button);
    if (on)
        m_checked.append(button);
}

void RuleItemWidgetTabel::setCurrentButton(DrawItemButton* button, bool announce)
{
    m_current = button;
    if (!button)
        return;
    button->setChecked(true);
    const QList<QAbstractButton*> checked = m_checked;
    for (QAbstractButton* other : checked) {
        if (other != button)
            other->setChecked(false);
    }
    if (announce)
        emit sgnCheckBtnChanged();
}

DrawItemButton* RuleItemWidgetTabel::findButton(int id) const
{
    const auto found = std::find_if(m_buttons.begin(), m_buttons.end(),
                                    [id](const DrawItemButton* b) { return b->id() == id; });
    return found == m_buttons.end() ? nullptr : *found;
}

DrawItemButton* RuleItemWidgetTabel::findDataButton(int dataId) const
{
    const auto found =
        std::find_if(m_buttons.begin(), m_buttons.end(),
                     [dataId](const DrawItemButton* b) { return b->dataId() == dataId; });
    return found == m_buttons.end() ? nullptr : *found;
}

DrawItemButton* RuleItemWidgetTabel::pointedButton() const
{
    DrawItemButton* focused = nullptr;
    for (DrawItemButton* button : m_buttons) {
        if (button->isPointed() && button->underMouse())
            return button;
        if (button->isPointed())
            focused = button;
    }
    return focused;
}

void RuleItemWidgetTabel::removeWidget(QWidget* widget)
{
    if (auto* button = qobject_cast<DrawItemButton*>(widget))
        m_group->removeButton(button);
    WidgetTabel::removeWidget(widget);
}

void RuleItemWidgetTabel::forgetWidget(const QObject* child)
{
    forgetIn(m_buttons, child);
    forgetIn(m_checked, child);
    if (m_current == child)
        m_current = nullptr;
    WidgetTabel::forgetWidget(child);
}
