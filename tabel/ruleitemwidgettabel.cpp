#include "tabel/ruleitemwidgettabel.h"

#include "tabel/drawitembutton.h"

#include <algorithm>

RuleItemWidgetTabel::RuleItemWidgetTabel(QWidget* parent) : WidgetTabel(parent)
{
    setPaddingLeft(5);
    setPaddingTop(5);
    setItemType(ItemSizeType::ItemFixSize);
    setFixCountLimit(1, 5);
    setItemSize(QSize(80, 24));
}

void RuleItemWidgetTabel::addButton(DrawItemButton* button)
{
    if (!button || m_buttons.contains(button))
        return;
    m_buttons.append(button);
    button->setEnabled(getControlEnable());
    connect(button, &DrawItemButton::clicked, this, [this, button] { pressed(button); });
    connect(button, &DrawItemButton::sgnEnableChanged, this,
            &RuleItemWidgetTabel::sgnEnableChanged);
    addWidget(button, false);
}

void RuleItemWidgetTabel::pressed(DrawItemButton* button)
{
    // Whoever listens may rebuild the table.
    const int id = button->id();
    setCurrentButton(button, true);
    emit sgnBtnClicked(id);
}

void RuleItemWidgetTabel::setCurrentButton(DrawItemButton* button, bool announce)
{
    m_current = button;
    if (!button)
        return;
    for (DrawItemButton* other : qAsConst(m_buttons))
        other->setChecked(other == button);
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

void RuleItemWidgetTabel::removeWidget(QWidget* widget)
{
    if (std::find(m_buttons.begin(), m_buttons.end(), widget) != m_buttons.end())
        widget->disconnect(this);
    WidgetTabel::removeWidget(widget);
}

void RuleItemWidgetTabel::forgetWidget(const QObject* child)
{
    const auto found = std::find(m_buttons.begin(), m_buttons.end(), child);
    if (found != m_buttons.end())
        m_buttons.erase(found);
    if (m_current == child)
        m_current = nullptr;
    WidgetTabel::forgetWidget(child);
}
